#include <QFontDatabase>
#include <QFontInfo>
#include <QPlainTextEdit>
#include <QPushButton>

#include "SystemSheetFixture.h"
#include "core/SystemText.h"
#include "ui/system/FontPreview.h"

namespace velmora::testing {
namespace {

using SystemWindow = cSystemSheetTest;

// One change on each page, made through its control, and the one member
// of the file that it must change.
struct cPageEdit {
  int page;
  std::function<void()> edit;
  const char* member;
};

TEST_F(SystemWindow, EachPageWritesExactlyTheFieldItsControlChanged) {
  const std::vector<cPageEdit> edits = {
      {0, [this] { Key(0, kIdFont, Qt::Key_Down); }, "m_iFont"},
      {1, [this] { Click(1, kIdInfinite + 1); }, "m_abInfinite"},
      {2, [this] { Click(2, kIdSoundBrowse + 5); }, "m_vecSounds"},
      {3, [this] { Type(3, kIdTitleMenuText + 3, QString::fromUtf8("ぼうけん")); }, "m_strText"},
      {4, [this] { Type(4, kIdTerm + 1, QString::fromUtf8("エリア")); }, "m_vecTerms"},
      {5, [this] { Type(5, kIdOptionDefault + 10, QStringLiteral("0")); }, "m_iDefault"},
      {6, [this] { Click(6, kIdCompatFlag + 0); }, "m_bCompat214"},
      {7, [this] { Click(7, kIdCompatFlag + 13); }, "m_bCompat749"},
      {8, [this] { Click(8, kIdCompatFlag + 25); }, "m_bCompat818_1"},
      {9, [this] { Click(9, kIdCompatFlag + 47); }, "m_bCompat913"},
  };
  prompt.QueuePath("wave\\free.wav");
  for (const cPageEdit& page : edits) {
    const std::vector<std::string> before = Dump();
    EXPECT_EQ(1, Run([&](cSystemSheet&) { page.edit(); }, true)) << page.page;
    EXPECT_EQ(ChangedMembers(before, Dump()), std::vector<std::string>{page.member}) << "page " << page.page + 1;
  }
  const cEdSystem& saved = SystemRecord();
  EXPECT_EQ(61, saved.m_iFont);
  EXPECT_EQ(0, saved.m_abInfinite[1]);
  EXPECT_EQ("wave\\free.wav", saved.m_vecSounds[5]);
  EXPECT_STREQ(SysText("ぼうけん"), saved.m_vecTitleMenu[3].m_strText.c_str());
  EXPECT_STREQ(SysText("エリア"), saved.m_vecTerms[1].c_str());
  EXPECT_EQ(0, saved.m_vecOptions[10].m_iDefault);
  EXPECT_EQ(1, saved.m_bCompat913);
  ASSERT_FALSE(prompt.Shown().empty());
  EXPECT_EQ("効果音の選択", prompt.Shown().front().caption);
}

TEST_F(SystemWindow, CancelAfterChangesOnEveryPageWritesNothing) {
  const std::vector<uint8_t> before = ReadBytes("data/System.dat");
  prompt.QueuePath("wave\\free.wav");
  EXPECT_EQ(0, Run(
                   [&](cSystemSheet& sheet) {
                     Type(0, kIdGameTitle, QStringLiteral("X"));
                     Click(1, kIdShareLives);
                     Click(2, kIdSoundBrowse);
                     Click(2, kIdStock + 4);
                     Click(3, kIdGaugeSymbol);
                     Type(4, kIdTerm + 38, QStringLiteral("Z"));
                     Type(5, kIdOptionKey, QStringLiteral("D3D"));
                     const int firstFlags[] = {0, 13, 25, 39};
                     for (int page = 6; page < sheet.PageCount(); ++page) {
                       Click(page, kIdCompatFlag + firstFlags[page - 6]);
                     }
                   },
                   false));
  EXPECT_EQ(before, ReadBytes("data/System.dat"));
  EXPECT_EQ("wave\\free.wav", SystemRecord().m_vecSounds[0]) << "the record is the file's";
  EXPECT_EQ(1, SystemRecord().m_bShareLives);
}

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

// A damaged file opens with its values shown within the limits; they are
// written back only by an OK, and then within the limits too.
TEST_F(SystemWindow, ValuesOutsideTheLimitsShowClampedAndOnlyOkWritesThem) {
  cEdSystem& damaged = SystemRecord();
  damaged.m_iFont = 500;
  damaged.m_i1UpScore = -7;
  damaged.m_iCharaDraw = 7;
  damaged.m_aiLives[2] = 0;
  damaged.m_vecGauges[4].m_iDigits = 9;
  damaged.m_vecTerms[0] = std::string(40, 'w');
  ASSERT_EQ(1, damaged.SaveFile(kSystemFile));
  ASSERT_EQ(1, damaged.LoadFile(kSystemFile));
  const std::vector<uint8_t> before = ReadBytes("data/System.dat");
  auto shown = [&] {
    EXPECT_EQ(Text(0, kIdFont), QStringLiteral("Sydnie"));
    EXPECT_EQ(Text(0, kId1UpScore), QStringLiteral("1"));
    EXPECT_EQ(Text(0, kIdCharaDraw), QString::fromUtf8("互換性重視"));
    EXPECT_EQ(Text(3, kIdGaugeDigits + 4), QStringLiteral("2"));
  };
  Run([&](cSystemSheet&) { shown(); }, false);
  EXPECT_EQ(before, ReadBytes("data/System.dat"));

  Run([&](cSystemSheet&) { shown(); }, true);
  const cEdSystem& saved = SystemRecord();
  EXPECT_EQ(121, saved.m_iFont);
  EXPECT_EQ(1, saved.m_i1UpScore);
  EXPECT_EQ(1, saved.m_iCharaDraw);
  EXPECT_EQ(1, saved.m_aiLives[2]);
  EXPECT_EQ(2, saved.m_vecGauges[4].m_iDigits);
  EXPECT_EQ(std::string(8, 'w'), saved.m_vecTerms[0]);
}

TEST_F(SystemWindow, ThePreviewDrawsTheChosenFaceOrSaysWhichStandsIn) {
  Run([&](cSystemSheet&) {
    auto* preview = dynamic_cast<cFontPreview*>(Show(0, kIdFontPreview));
    ASSERT_NE(preview, nullptr);
    const QList<QLabel*> lines = preview->findChildren<QLabel*>();  // the sample, then the note
    ASSERT_EQ(lines.size(), 2);
    Key(0, kIdFont, Qt::Key_Home);
    EXPECT_EQ(lines[0]->font().family(), QStringLiteral("System"));
    const QString installed = QFontDatabase::families().front();
    preview->ShowFace(installed);
    EXPECT_EQ(lines[0]->font().family(), installed);
    EXPECT_TRUE(lines[1]->text().isEmpty());
    preview->ShowFace(QStringLiteral("No Such Face Anywhere"));
    EXPECT_TRUE(lines[1]->text().contains(QFontInfo(lines[0]->font()).family())) << "names the face in use";
  }, false);
}

}  // namespace
}  // namespace velmora::testing
