#include <QApplication>
#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QPushButton>

#include "SystemSheetFixture.h"
#include "core/SystemText.h"
#include "ui/system/FontPreview.h"

namespace velmora::testing {
namespace {

using SystemWindow = cSystemSheetTest;

TEST_F(SystemWindow, MusicPastTheEndOfTheListShowsNoneAndIsSavedAsNone) {
  const std::vector<std::string> before = Dump();  // the inspector reads the database anew
  Database().m_Bgm.Resize(2);  // the story's music, row 2, is gone
  EXPECT_EQ(1, Run([&](cSystemSheet&) { EXPECT_EQ(Text(2, kIdBgm + 1), QString::fromUtf8("なし")); }, true));
  EXPECT_EQ(ChangedMembers(before, Dump()), std::vector<std::string>{"m_aiBgm"});
  EXPECT_EQ((std::vector<int32_t>{1, 0, 0, 0, 0, 0}), SystemRecord().m_aiBgm);
}

// Dialog 287 works on the window's copy, so neither its "デフォルトに戻す"
// nor its OK reaches the file before the window's own OK.
TEST_F(SystemWindow, DefaultHelpChangesNothingUntilBothOks) {
  SystemRecord().m_strHelp = "custom";
  ASSERT_EQ(1, SystemRecord().SaveFile(kSystemFile));
  const std::vector<uint8_t> before = ReadBytes("data/System.dat");
  auto editHelp = [&](const char* closeWith) {
    WhenModal([closeWith](QWidget* help) {
      EXPECT_EQ(help->findChild<QPlainTextEdit*>()->toPlainText(), QStringLiteral("custom"));
      for (QPushButton* button : help->findChildren<QPushButton*>()) {
        if (button->text() == QString::fromUtf8("デフォルトに戻す")) QTest::mouseClick(button, Qt::LeftButton);
      }
      EXPECT_TRUE(help->findChild<QPlainTextEdit*>()->toPlainText().startsWith(QString::fromUtf8("「手動登録」")));
      for (QPushButton* button : help->findChildren<QPushButton*>()) {
        if (button->text() == QString::fromUtf8(closeWith)) QTest::mouseClick(button, Qt::LeftButton);
      }
    });
    Click(3, kIdEditHelp);
  };
  Run([&](cSystemSheet& sheet) {
    editHelp("キャンセル");
    EXPECT_EQ("custom", sheet.Work().m_strHelp);
  }, true);
  EXPECT_EQ(before, ReadBytes("data/System.dat")) << "nothing changed";

  Run([&](cSystemSheet& sheet) {
    editHelp("OK");
    EXPECT_EQ(DefaultSystemHelp(), sheet.Work().m_strHelp);
  }, false);
  EXPECT_EQ(before, ReadBytes("data/System.dat"));

  Run([&](cSystemSheet&) { editHelp("OK"); }, true);
  EXPECT_EQ(DefaultSystemHelp(), SystemRecord().m_strHelp);
}

TEST_F(SystemWindow, ThePreviewDrawsTheChosenFaceOrSaysWhichStandsIn) {
  Run([&](cSystemSheet&) {
    auto* preview = dynamic_cast<cFontPreview*>(Show(0, kIdFontPreview));
    ASSERT_NE(preview, nullptr);
    Key(0, kIdFont, Qt::Key_Home);
    EXPECT_EQ(preview->findChild<QLabel*>()->font().family(), QStringLiteral("System"));
    preview->ShowFace(QFontDatabase::families().front());
    EXPECT_FALSE(preview->ShowsStandIn());
    preview->ShowFace(QStringLiteral("No Such Face Anywhere"));
    EXPECT_TRUE(preview->ShowsStandIn());
  }, false);
}

}  // namespace
}  // namespace velmora::testing
