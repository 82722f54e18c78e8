#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>
#include <gtest/gtest.h>

#include "LayoutSampleDialog.h"
#include "ui/controls/FormLayout.h"
#include "ui/controls/FormScrollArea.h"
#include "ui/framework/ItemMap.h"

namespace velmora::testing {
namespace {

class FormLayout : public ::testing::Test {
 protected:
  void SetUp() override {
    for (int i = 0; i < kValueCount; ++i) record.anValue[static_cast<size_t>(i)] = i * 10;
    ASSERT_TRUE(dialog.Create(0, true));
    Activate(dialog.Window());
  }
  QLineEdit* Edit(int id) { return qobject_cast<QLineEdit*>(dialog.Item(id)); }
  QRect OnWindow(QWidget* widget) {
    return QRect(widget->mapTo(dialog.Window(), QPoint(0, 0)), widget->size());
  }
  cFormScrollArea* Area() { return dialog.Window()->findChild<cFormScrollArea*>(); }

  cDialogManager manager;
  cLayoutRecord record;
  cLayoutSampleDialog dialog{manager, record};
};

TEST_F(FormLayout, EveryControlInsideTheBlocksIsBoundInTableOrder) {
  EXPECT_EQ(Edit(kIdLeftX)->text(), QStringLiteral("3"));
  EXPECT_EQ(Edit(kIdRightValue)->text(), QStringLiteral("22"));
  EXPECT_EQ(Edit(kIdValueBase + 99)->text(), QStringLiteral("990"));
  EXPECT_EQ(qobject_cast<QComboBox*>(dialog.Item(kIdRightType))->currentIndex(), 2);

  // Kind order first, then the order of the table with its blocks opened.
  std::vector<int> ids;
  for (const auto& control : dialog.Controls()) ids.push_back(control->Id());
  ASSERT_GE(ids.size(), 4u + kValueCount);
  EXPECT_EQ((std::vector<int>(ids.begin(), ids.begin() + 5)),
            (std::vector<int>{kIdLeftValue, kIdLeftX, kIdLeftY, kIdRightValue, kIdValueBase}));

  Edit(kIdValueBase + 57)->setText(QStringLiteral("4321"));
  Edit(kIdLeftY)->setText(QStringLiteral("9"));
  dialog.ApplyAll();
  EXPECT_EQ(record.anValue[57], 4321);
  EXPECT_EQ(record.nLeftY, 9);
}

TEST_F(FormLayout, ColumnsStandSideBySideWithTheirGroupsNested) {
  const QRect left = OnWindow(Edit(kIdLeftValue));
  const QRect right = OnWindow(Edit(kIdRightValue));
  EXPECT_LT(left.right(), right.left());
  EXPECT_EQ(left.top(), right.top()) << "both columns start at the top";

  QGroupBox* inner = nullptr;
  for (QWidget* up = Edit(kIdLeftX)->parentWidget(); up; up = up->parentWidget()) {
    auto* frame = qobject_cast<QGroupBox*>(up);
    if (!frame) continue;
    if (!inner) {
      inner = frame;
      EXPECT_EQ(frame->title(), QString::fromUtf8("座標"));
    } else {
      EXPECT_EQ(frame->title(), QString::fromUtf8("左辺"));
      break;
    }
  }
  ASSERT_NE(inner, nullptr);
  EXPECT_GT(OnWindow(Edit(kIdLeftX)).top(), left.bottom()) << "the nested group stands below its rows";
}

TEST_F(FormLayout, RepeatedRowsFollowTheirTable) {
  int previous = -1;
  for (int i = 0; i < 6; ++i) {
    QWidget* combo = dialog.Item(kIdKeyBase + i);
    ASSERT_NE(combo, nullptr) << i;
    EXPECT_EQ(qobject_cast<QComboBox*>(combo)->count(), KeyStateTable.Size());
    const int top = OnWindow(combo).top();
    EXPECT_GT(top, previous) << i;
    previous = top;
  }
  QStringList labels;
  for (QLabel* label : dialog.Item(kIdKeyBase)->parentWidget()->findChildren<QLabel*>()) labels << label->text();
  EXPECT_EQ(labels, QString::fromUtf8("← → ↑ ↓ Z X").split(QLatin1Char(' ')));
}

TEST_F(FormLayout, AHundredFieldsScrollInsideTheScreenWithoutCuttingAControl) {
  const QRect screen = dialog.Window()->screen()->availableGeometry();
  EXPECT_LE(dialog.Window()->frameGeometry().height(), screen.height());
  cFormScrollArea* area = Area();
  ASSERT_NE(area, nullptr);
  EXPECT_GE(area->viewport()->width(), area->widget()->minimumSizeHint().width());
  EXPECT_FALSE(area->horizontalScrollBar()->isVisible());
  EXPECT_TRUE(area->verticalScrollBar()->isVisible());

  // Tab goes down the rows in table order, and the row that takes the
  // focus comes into view.
  Edit(kIdValueBase)->setFocus();
  for (int i = 1; i < kValueCount; ++i) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), Edit(kIdValueBase + i)) << i;
  }
  EXPECT_GT(area->verticalScrollBar()->value(), 0);
  const QRect last(Edit(kIdValueBase + 99)->mapTo(area->viewport(), QPoint(0, 0)), Edit(kIdValueBase + 99)->size());
  EXPECT_TRUE(area->viewport()->rect().contains(last));

  Edit(kIdLeftValue)->setFocus();
  Edit(kIdValueBase + 3)->setFocus();
  EXPECT_TRUE(area->viewport()->rect().contains(Edit(kIdValueBase + 3)->mapTo(area->viewport(), QPoint(0, 0))));
}

TEST_F(FormLayout, TheWheelOverAnUnfocusedComboIsLeftToTheRows) {
  auto* combo = qobject_cast<QComboBox*>(dialog.Item(kIdKeyBase));
  auto wheel = [combo] {
    const QPoint at = combo->rect().center();
    QWheelEvent event(at, combo->mapToGlobal(at), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(combo, &event);
    return event.isAccepted();
  };
  Edit(kIdLeftValue)->setFocus();
  combo->setCurrentIndex(0);
  EXPECT_FALSE(wheel()) << "ignored, so the window system's wheel goes on to the scroll area";
  EXPECT_EQ(combo->currentIndex(), 0);
  combo->setFocus();
  wheel();
  EXPECT_EQ(combo->currentIndex(), 1) << "a combo with the focus takes the wheel";
}

// A check box whose text is longer than any window is wide.
class cWrapCheckDialog : public cDialog {
 public:
  static constexpr int kIdWrap = 2501;
  cWrapCheckDialog(cDialogManager& manager, int32_t& flag) : cDialog(manager, nullptr) {
    m_form.rows = {{nullptr, cCheckDesc{kIdWrap, &flag, kText, true}}};
  }
  static constexpr const char* kText =
      "とても長い説明のチェックボックスは、ダイアログの幅を広げずにその幅で折り返し、"
      "文字をクリックしてもチェックボックスをクリックしたのと同じように切り替わる。"
      "チェックボックスが使えないときは、その文字も灰色になる。";
};

TEST(FormLayoutWrap, ALongCheckTextWrapsAndAClickOnItIsAClickOnTheBox) {
  cDialogManager manager;
  int32_t flag = 0;
  cWrapCheckDialog dialog(manager, flag);
  ASSERT_TRUE(dialog.Create(0, true));
  Activate(dialog.Window());
  QLabel* caption = nullptr;
  for (QLabel* label : dialog.Window()->findChildren<QLabel*>()) {
    if (label->text() == QString::fromUtf8(cWrapCheckDialog::kText)) caption = label;
  }
  ASSERT_NE(caption, nullptr);
  EXPECT_LT(dialog.Window()->width(), caption->fontMetrics().horizontalAdvance(caption->text()));
  EXPECT_GT(caption->height(), 2 * caption->fontMetrics().height()) << "wrapped";

  QTest::mouseClick(caption, Qt::LeftButton);
  EXPECT_TRUE(qobject_cast<QAbstractButton*>(dialog.Item(cWrapCheckDialog::kIdWrap))->isChecked());
  dialog.EnableControl(cWrapCheckDialog::kIdWrap, false);
  EXPECT_FALSE(caption->isEnabled());
  QTest::mouseClick(caption, Qt::LeftButton);
  dialog.SendCommand(MakeCommand(kIdOk, kNoticeClicked), 0);
  EXPECT_EQ(flag, 1) << "a click on a disabled text changes nothing";
}

}  // namespace
}  // namespace velmora::testing
