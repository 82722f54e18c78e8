#include <QCheckBox>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSlider>
#include <QToolButton>
#include <gtest/gtest.h>

#include "SampleDialog.h"
#include "support/ScriptedPrompt.h"
#include "platform/TextCodec.h"
#include "ui/controls/Combo.h"
#include "ui/controls/EditVal.h"

namespace velmora::testing {
namespace {

class BoundControls : public ::testing::Test {
 protected:
  void SetUp() override {
    dialog = std::make_unique<cSampleDialog>(manager, record);
    ASSERT_TRUE(dialog->Create(0, true));
    Activate(dialog->Window());
  }
  QLineEdit* Edit(int id) { return qobject_cast<QLineEdit*>(dialog->Item(id)); }
  // Types into an edit as the author would, after clearing it.
  void Retype(int id, const QString& text) {
    QLineEdit* edit = Edit(id);
    edit->setFocus();
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Backspace);
    TypeText(edit, text);
  }
  void LeaveEdit(int id) { dialog->SendCommand(MakeCommand(id, kNoticeKillFocus), 0); }

  cDialogManager manager;
  cSampleRecord record;
  std::unique_ptr<cSampleDialog> dialog;
};

TEST_F(BoundControls, RefreshShowsEveryFieldAndOkCommitsThem) {
  EXPECT_EQ(Edit(kIdLife)->text(), QStringLiteral("10"));
  EXPECT_EQ(Edit(kIdSpeed)->text(), QStringLiteral("1.50"));
  EXPECT_EQ(Edit(kIdName)->text(), QStringLiteral("abc"));
  EXPECT_EQ(qobject_cast<QComboBox*>(dialog->Item(kIdKind))->currentIndex(), 1);  // offset 1: value 2 is row 1
  EXPECT_EQ(qobject_cast<QSlider*>(dialog->Item(kIdVolume))->value(), 50);
  EXPECT_EQ(Edit(kIdVolumeEdit)->text(), QStringLiteral("50"));

  Retype(kIdLife, QStringLiteral("42"));
  Retype(kIdName, QString::fromUtf8("勇者"));
  QTest::mouseClick(dialog->Item(kIdFlag), Qt::LeftButton);
  auto* kind = qobject_cast<QComboBox*>(dialog->Item(kIdKind));
  kind->setCurrentIndex(2);
  EXPECT_EQ(record.nLife, 10);  // nothing reaches the record before OK
  QTest::mouseClick(dialog->Item(kIdOk), Qt::LeftButton);

  EXPECT_FALSE(dialog->IsOpen());
  EXPECT_EQ(dialog->Result(), 1);
  EXPECT_EQ(record.nLife, 42);
  EXPECT_EQ(ToUtf8(record.strName), "勇者");
  EXPECT_EQ(record.bFlag, 1);
  EXPECT_EQ(record.nKind, 3);
}

TEST_F(BoundControls, CancelAndCloseBoxLeaveTheRecord) {
  Retype(kIdLife, QStringLiteral("77"));
  QTest::mouseClick(dialog->Item(kIdCancel), Qt::LeftButton);
  EXPECT_EQ(dialog->Result(), 0);
  EXPECT_EQ(record.nLife, 10);
  ASSERT_TRUE(dialog->Create(0, true));  // the same object opens again from the same table
  EXPECT_EQ(Edit(kIdLife)->text(), QStringLiteral("10"));
  Retype(kIdLife, QStringLiteral("66"));
  dialog->Window()->close();
  EXPECT_FALSE(dialog->IsOpen());
  EXPECT_EQ(record.nLife, 10);
}

TEST_F(BoundControls, NumericEditDropsForeignCharactersAndClamps) {
  Retype(kIdLife, QStringLiteral("1a2"));
  EXPECT_EQ(Edit(kIdLife)->text(), QStringLiteral("12"));
  Retype(kIdLife, QStringLiteral("500"));
  EXPECT_EQ(Edit(kIdLife)->text(), QStringLiteral("100"));
  Retype(kIdShort, QStringLiteral("-"));
  EXPECT_EQ(Edit(kIdShort)->text(), QStringLiteral("-"));
  Retype(kIdShort, QStringLiteral("-0"));
  EXPECT_EQ(Edit(kIdShort)->text(), QStringLiteral("-0"));
  TypeText(Edit(kIdShort), QStringLiteral("5"));
  EXPECT_EQ(Edit(kIdShort)->text(), QStringLiteral("-5"));
  Edit(kIdLife)->setText(QStringLiteral("3x"));  // pasted text loses the letter at the next change
  TypeText(Edit(kIdLife), QStringLiteral("4"));
  EXPECT_EQ(Edit(kIdLife)->text(), QStringLiteral("34"));
  dialog->ApplyAll();
  EXPECT_EQ(record.nLife, 34);
  EXPECT_EQ(record.nShort, -5);
}

TEST_F(BoundControls, MinusAloneStoresZero) {
  Retype(kIdShort, QStringLiteral("-"));
  dialog->ApplyAll();
  EXPECT_EQ(record.nShort, 0);
}

TEST_F(BoundControls, InputMethodFullWidthDigitsArriveAsAscii) {
  Retype(kIdLife, QString());
  QInputMethodEvent composing(QString::fromUtf8("１２"), {});
  QApplication::sendEvent(Edit(kIdLife), &composing);
  QInputMethodEvent commit;
  commit.setCommitString(QString::fromUtf8("１２あ"));
  QApplication::sendEvent(Edit(kIdLife), &commit);
  EXPECT_EQ(Edit(kIdLife)->text(), QStringLiteral("12"));
  // Half-width characters inside a composition result are dropped; a plain
  // key handed over by the input method is typed.
  Retype(kIdLife, QString());
  QInputMethodEvent mixed;
  mixed.setCommitString(QString::fromUtf8("5３x"));
  QApplication::sendEvent(Edit(kIdLife), &mixed);
  QInputMethodEvent plain;
  plain.setCommitString(QStringLiteral("4x"));
  QApplication::sendEvent(Edit(kIdLife), &plain);
  EXPECT_EQ(Edit(kIdLife)->text(), QStringLiteral("34"));
  // A string edit takes an input method's result as it stands.
  Retype(kIdName, QString());
  QInputMethodEvent kana;
  kana.setCommitString(QString::fromUtf8("ゆうしゃ"));
  QApplication::sendEvent(Edit(kIdName), &kana);
  EXPECT_EQ(Edit(kIdName)->text(), QString::fromUtf8("ゆうしゃ"));
}

// A name composed through an input method reaches the record as CP932;
// a character that CP932 lacks is refused there and then, never stored as '?'.
TEST_F(BoundControls, InputMethodTextWithoutCp932CodeIsRefusedWithAMessage) {
  cScriptedPrompt prompt;
  Retype(kIdName, QString());
  QInputMethodEvent hero;
  hero.setCommitString(QString::fromUtf8("勇者"));
  QApplication::sendEvent(Edit(kIdName), &hero);
  QInputMethodEvent hangul;
  hangul.setCommitString(QString::fromUtf8("한"));
  QApplication::sendEvent(Edit(kIdName), &hangul);
  EXPECT_EQ(Edit(kIdName)->text(), QString::fromUtf8("勇者"));
  EXPECT_EQ(Edit(kIdName)->cursorPosition(), 2);
  ASSERT_EQ(prompt.Shown().size(), 1u);
  EXPECT_EQ(prompt.Shown()[0].caption, "エラー");
  EXPECT_NE(prompt.LastText().find("U+D55C"), std::string::npos) << prompt.LastText();
  TypeText(Edit(kIdName), QStringLiteral("\\"));
  dialog->ApplyAll();
  EXPECT_EQ(record.strName, SysText("勇者\\"));
}

TEST_F(BoundControls, LeavingAnEmptyBoxShowsTheFallback) {
  Retype(kIdLife, QString());
  EXPECT_EQ(Edit(kIdLife)->text(), QString());  // stays empty while typing
  LeaveEdit(kIdLife);
  EXPECT_EQ(Edit(kIdLife)->text(), QStringLiteral("0"));
  auto* life = static_cast<cEditVal*>(dialog->Control(kIdLife));
  life->SetRange(5, 100);
  Retype(kIdLife, QString());
  LeaveEdit(kIdLife);
  EXPECT_EQ(Edit(kIdLife)->text(), QStringLiteral("5"));
}

TEST_F(BoundControls, SpinStepsAndStopsAtTheLimit) {
  auto* spin = dialog->Item(kIdLifeSpin);
  auto* up = spin->findChildren<QToolButton*>().at(0);
  QTest::mouseClick(up, Qt::LeftButton);
  EXPECT_EQ(Edit(kIdLife)->text(), QStringLiteral("11"));
  Retype(kIdLife, QStringLiteral("100"));
  QTest::mouseClick(up, Qt::LeftButton);
  EXPECT_EQ(Edit(kIdLife)->text(), QStringLiteral("100"));
  dialog->EnableControl(kIdLife, false);
  EXPECT_FALSE(spin->isEnabled());  // a numeric edit takes its spin along
}

TEST_F(BoundControls, FloatShowsDecimalsOfTheStep) {
  Retype(kIdSpeed, QStringLiteral("2.345"));
  EXPECT_EQ(Edit(kIdSpeed)->text(), QStringLiteral("2.345"));
  LeaveEdit(kIdSpeed);
  EXPECT_EQ(Edit(kIdSpeed)->text(), QStringLiteral("2.35"));
  dialog->ApplyAll();
  EXPECT_DOUBLE_EQ(record.dSpeed, 2.35);
}

TEST_F(BoundControls, StringEditCountsCharactersAndReflows) {
  Retype(kIdName, QString::fromUtf8("あいうえおかきくけこ"));
  EXPECT_EQ(Edit(kIdName)->text(), QString::fromUtf8("あいうえ"));  // 8 bytes: four two-byte characters
  auto* note = qobject_cast<QPlainTextEdit*>(dialog->Item(kIdNote));
  note->setFocus();
  TypeText(note, QString(30, QLatin1Char('x')));
  EXPECT_EQ(note->toPlainText(), QString(20, QLatin1Char('x')) + QLatin1Char('\n') + QString(10, QLatin1Char('x')));
  EXPECT_EQ(note->textCursor().position(), 31);
  dialog->ApplyAll();
  EXPECT_EQ(record.strNote, std::string(20, 'x') + "\r\n" + std::string(10, 'x'));
}

TEST_F(BoundControls, SliderShowsInItsEditAndRunsTheCommandPath) {
  std::vector<int> seen;
  dialog->onCommand = [&](int id, int) { seen.push_back(id); };
  auto* slider = qobject_cast<QSlider*>(dialog->Item(kIdVolume));
  slider->setFocus();
  QTest::keyClick(slider, Qt::Key_Right);
  EXPECT_EQ(Edit(kIdVolumeEdit)->text(), QStringLiteral("51"));
  EXPECT_NE(std::find(seen.begin(), seen.end(), kIdVolume), seen.end());
  dialog->ApplyAll();
  EXPECT_EQ(record.nVolume, 51);
}

TEST_F(BoundControls, RefreshingNeverWritesBack) {
  Retype(kIdLife, QStringLiteral("33"));
  dialog->onRefresh = [&] { dialog->Control(kIdLife)->Commit(); };
  dialog->RefreshOthers(kIdLife);
  EXPECT_EQ(record.nLife, 10);  // the Commit inside the refresh did nothing
  dialog->Control(kIdLife)->Commit();
  EXPECT_EQ(record.nLife, 33);
}

TEST_F(BoundControls, ComboAdjustForcesTheFieldIntoItsList) {
  record.nKind = 7;
  cComboDesc desc{kIdKind, &record.nKind, SysTexts({"a", "b", "c"}), 1, nullptr, true};
  auto* box = new QComboBox(dialog->Window());
  cCombo combo(*dialog, box, desc);
  EXPECT_EQ(record.nKind, 3);
  EXPECT_EQ(box->currentIndex(), 2);
  record.nKind = 0;
  combo.Refresh();
  EXPECT_EQ(record.nKind, 1);
}

TEST_F(BoundControls, ConversionTableStoresTheTableValue) {
  const std::vector<int> inherit = {0, 2};
  int32_t mode = 2;
  cComboDesc desc{kIdKind, &mode, SysTexts({"継承", "独自"}), 0, &inherit};
  auto* box = new QComboBox(dialog->Window());
  cCombo combo(*dialog, box, desc);
  EXPECT_EQ(box->currentIndex(), 1);
  box->setCurrentIndex(0);
  combo.Commit();
  EXPECT_EQ(mode, 0);
}

}  // namespace
}  // namespace velmora::testing
