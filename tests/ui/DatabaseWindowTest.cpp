#include <QAbstractButton>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListWidget>
#include <QSlider>
#include <QTabWidget>
#include <filesystem>

#include "EditorOnSample.h"
#include "SampleDialog.h"
#include "core/ProjectPaths.h"
#include "graphics/AnimePreview.h"
#include "platform/HostPath.h"
#include "project/WorldMap.h"
#include "sound/MusicPlayer.h"
#include "sound/WavePlayer.h"
#include "ui/controls/EditWidgets.h"
#include "ui/database/AnimePages.h"
#include "ui/database/DatabaseSheet.h"
#include "ui/database/DbFilePage.h"
#include "ui/database/EffectPages.h"
#include "ui/database/FilePages.h"
#include "ui/database/FrameDialogs.h"
#include "ui/database/ObjectListDialog.h"
#include "ui/palette/SurfaceImage.h"

namespace velmora::testing {
namespace {

namespace fs = std::filesystem;

enum eTab { kTabSet, kTabAnime, kTabCharaBmp, kTabSword, kTabEffect, kTabCharaEffect, kTabScrEffect, kTabPicture,
            kTabSound, kTabBgm, kTabChip };

constexpr int kCmdDatabase = 40063;

std::vector<std::string> ProjectFiles() {
  std::vector<std::string> files;
  for (int i = 0; i < kDbListCount; ++i) files.push_back(PathOf(DbListInfo(static_cast<eDbList>(i)).file));
  files.push_back(PathOf(ePath::WorldMap));
  return files;
}

// The database window opened from the stage window's menu on the sample
// project, driven as the author drives it.
class DatabaseWindow : public cEditorOnSample {
 protected:
  void SetUp() override {
    cEditorOnSample::SetUp();
    for (const std::string& file : ProjectFiles()) before.push_back(ReadBytes(HostPath(file)));
  }
  void TearDown() override {
    if (OpenDatabaseSheet()) OpenDatabaseSheet()->Close(0);
    QCoreApplication::processEvents();
    cEditorOnSample::TearDown();
  }

  cDatabaseSheet& Open() {
    m_nShownBefore = prompt.Shown().size();
    Command(Stage(), kCmdDatabase);
    cDatabaseSheet* sheet = OpenDatabaseSheet();
    EXPECT_NE(sheet, nullptr);
    return *sheet;
  }
  cDatabaseSheet& Sheet() { return *OpenDatabaseSheet(); }
  template <class Element>
  cDbListPage<Element>& Page(int tab) {
    Sheet().Window()->findChild<QTabWidget*>()->setCurrentIndex(tab);
    return *dynamic_cast<cDbListPage<Element>*>(Sheet().Page(tab));
  }
  static QListWidget* List(cDialog& page, int id = kIdDbList) { return qobject_cast<QListWidget*>(page.Item(id)); }
  static void Select(cDialog& page, int row) { List(page)->setCurrentRow(row); }
  static void Press(cDialog& page, int id) { qobject_cast<QAbstractButton*>(page.Item(id))->click(); }
  static void Retype(cDialog& page, int id, const QString& text) {
    auto* edit = qobject_cast<QLineEdit*>(page.Item(id));
    edit->selectAll();
    edit->del();
    TypeText(edit, text);
  }
  // A choice in a combo box as a click on its row makes it.
  static void Choose(cDialog& page, int id, int row) {
    auto* box = qobject_cast<QComboBox*>(page.Item(id));
    box->setCurrentIndex(row);
    emit box->activated(row);
  }
  static QString Text(cDialog& page, int id) { return qobject_cast<QLineEdit*>(page.Item(id))->text(); }
  void PressSheetButton(QDialogButtonBox::ButtonRole role) {
    auto* box = Sheet().Window()->findChild<QDialogButtonBox*>();
    for (QAbstractButton* button : box->buttons()) {
      if (box->buttonRole(button) == role) button->click();
    }
    QCoreApplication::processEvents();
  }
  std::vector<size_t> ChangedFiles() const {
    std::vector<size_t> changed;
    const std::vector<std::string> files = ProjectFiles();
    for (size_t i = 0; i < files.size(); ++i) {
      if (ReadBytes(HostPath(files[i])) != before[i]) changed.push_back(i);
    }
    return changed;
  }

  // The boxes shown since the window opened, in UTF-8.
  std::vector<std::string> Told() const {
    std::vector<std::string> texts;
    for (size_t i = m_nShownBefore; i < prompt.Shown().size(); ++i) texts.push_back(prompt.Shown()[i].text);
    return texts;
  }

  std::vector<std::vector<uint8_t>> before;
  size_t m_nShownBefore = 0;
};

TEST_F(DatabaseWindow, OpensOverHiddenWindowsAndCancelForgetsEveryChange) {
  cDatabaseSheet& sheet = Open();
  ASSERT_EQ(sheet.PageCount(), 11);
  EXPECT_EQ(sheet.Window()->windowTitle(), QString::fromUtf8("データベース"));
  const QTabWidget* tabs = sheet.Window()->findChild<QTabWidget*>();
  EXPECT_EQ(tabs->tabText(kTabChip), QString::fromUtf8("ワールドチップ"));
  EXPECT_FALSE(Stage().Window()->isVisible());
  EXPECT_FALSE(Stage().Window()->isEnabled());
  EXPECT_TRUE(sheet.Window()->isEnabled());

  // Index 0 of the reserved lists stays out of sight; sets show theirs.
  EXPECT_EQ(List(*sheet.Page(kTabSet))->count(), 3);
  EXPECT_EQ(List(*sheet.Page(kTabAnime))->count(), 3);

  auto& picture = Page<cEdPicture>(kTabPicture);
  Retype(picture, kIdDbName, QStringLiteral("changed"));
  Press(picture, kIdDbNew);
  EXPECT_EQ(List(picture)->count(), 3);
  EXPECT_EQ(ToUtf8(sheet.Work().db.m_Picture.At(1).m_strName), "changed");
  EXPECT_EQ(ToUtf8(Database().m_Picture.At(1).m_strName), "背景") << "the project's list waits for OK";

  PressSheetButton(QDialogButtonBox::RejectRole);
  EXPECT_EQ(OpenDatabaseSheet(), nullptr);
  EXPECT_TRUE(ChangedFiles().empty());
  EXPECT_EQ(Database().Count(eDbList::Picture), 3);
  EXPECT_TRUE(Stage().Window()->isVisible());
  EXPECT_TRUE(Stage().Window()->isEnabled());
  EXPECT_TRUE(Palettes().Palette({false, 0}).Window()->isVisible()) << "the palettes of the layer come back";
}

// A new animation of three frames, made through dialog 221, and OK.
TEST_F(DatabaseWindow, OkWritesTheNewAnimationAndNoOtherByte) {
  Open();
  auto& anime = Page<cEdAnime>(kTabAnime);
  Press(anime, kIdDbNew);
  Retype(anime, kIdDbName, QStringLiteral("three"));
  WhenModal([](QWidget* modal) {
    cDialog& pattern = *static_cast<cDialogWindow*>(modal)->Dialog();
    EXPECT_TRUE(pattern.Item(cAnimePatternDialog::kIdCommand)->isEnabled());
    Press(pattern, cAnimePatternDialog::kIdInsert);
    Press(pattern, cAnimePatternDialog::kIdInsert);
    Retype(pattern, cAnimePatternDialog::kIdTime, QStringLiteral("7"));
    pattern.SendCommand(MakeCommand(kIdOk, kNoticeClicked), 0);
  });
  Press(anime, kIdAnimePattern);
  EXPECT_EQ(List(anime, kIdAnimeFrames)->count(), 3);
  PressSheetButton(QDialogButtonBox::AcceptRole);

  EXPECT_EQ(ChangedFiles(), std::vector<size_t>{static_cast<size_t>(eDbList::Anime)});
  cDbList<cEdAnime> reloaded;
  ASSERT_TRUE(reloaded.LoadFile(PathOf(ePath::Anime)));
  ASSERT_EQ(reloaded.Count(), 5);
  EXPECT_EQ(reloaded.At(4).m_strName, "three");
  ASSERT_EQ(reloaded.At(4).m_vecFrames.size(), 3u);
  EXPECT_EQ(reloaded.At(4).m_vecFrames[0].m_iTime, 7);
}

TEST_F(DatabaseWindow, AnEffectTakesTheDefaultsOfAChosenKindOnly) {
  Open();
  auto& effects = Page<cEdCharaEffect>(kTabCharaEffect);
  auto params = [&effects] {
    const int32_t* p = effects.Work().m_aiParam;
    return std::vector<int32_t>(p, p + 5);
  };
  Choose(effects, kIdEffectKind, 3);  // kind 4
  Choose(effects, kIdEffectKind, 5);  // kind 6
  EXPECT_EQ(params(), (std::vector<int32_t>{10, 2, 0, 0, 0}));
  EXPECT_FALSE(effects.Item(kIdEffectParam + 2)->isEnabled()) << "an empty slot is closed";
  const std::vector<cEdCharaEffect> stored = Sheet().Work().db.m_CharaEffect.m_vecEntries;
  Select(effects, 1);
  Select(effects, 0);
  EXPECT_EQ(params(), (std::vector<int32_t>{10, 2, 0, 0, 0}));
  for (size_t i = 0; i < stored.size(); ++i) {
    EXPECT_TRUE(IsSame(stored[i], Sheet().Work().db.m_CharaEffect.m_vecEntries[i])) << i;
  }

  // A stored value beyond its kind's limits shows clamped and stays stored.
  cEdCharaEffect& circle = Sheet().Work().db.m_CharaEffect.At(3);
  circle.m_iKind = 10;
  circle.m_aiParam[1] = 500;
  Select(effects, 2);
  EXPECT_EQ(Text(effects, kIdEffectParam + 1), QStringLiteral("32"));
  Select(effects, 0);
  EXPECT_EQ(circle.m_aiParam[1], 500);

  // The colour change shows its colour, and only it.
  Choose(effects, kIdEffectKind, 12);  // kind 13
  EXPECT_TRUE(effects.Item(kIdEffectKind + 2)->isVisibleTo(effects.Window()));
  Choose(effects, kIdEffectKind, 13);
  EXPECT_FALSE(effects.Item(kIdEffectKind + 2)->isVisibleTo(effects.Window()));
}

// The preview steps through the frames by their times, one step of the
// idle loop being a sixtieth of a second.
TEST_F(DatabaseWindow, APreviewAdvancesByTheFrameTimes) {
  Open();
  auto& anime = Page<cEdAnime>(kTabAnime);
  Select(anime, 1);  // ジャンプ: character 1, cell 5 for 2/10 s, then cell 6
  auto shown = [&anime] { return static_cast<cPictureView*>(anime.Item(kIdAnimePreview))->Front(); };
  auto expected = [&anime](int cell) {
    cSurface surface;
    DrawAnimePreview(surface, AnimePreviewLook(anime.Work(), cell, 0));
    return ToImage(surface);
  };
  EXPECT_TRUE(anime.WantsIdle());
  EXPECT_EQ(shown(), expected(5));
  for (int tick = 0; tick < 11; ++tick) anime.Idle();
  EXPECT_EQ(shown(), expected(5));
  anime.Idle();
  EXPECT_EQ(shown(), expected(6));
  EXPECT_NE(expected(5), expected(6));

  Page<cEdPicture>(kTabPicture);
  EXPECT_FALSE(anime.WantsIdle()) << "no idle work unless an animated page is on show";
  EXPECT_FALSE(Sheet().Page(kTabPicture)->WantsIdle());
}

TEST_F(DatabaseWindow, ASetsSlotsOpenTheirPatternWithoutCommands) {
  Open();
  auto& sets = Page<cEdAnimeSet>(kTabSet);
  Choose(sets, kIdAnimeSample, 4);  // 専用bmp
  EXPECT_TRUE(sets.Item(kIdAnimeSample + 3)->isEnabled());
  EXPECT_FALSE(sets.Item(kIdAnimeList)->isEnabled());
  EXPECT_EQ(sets.Work().m_vecAnime[0].m_cSampleKind, kGraphicKindOwnBmp);
  List(sets, kIdAnimeFrames)->setCurrentRow(3);
  Sheet().Work().db.m_AnimeSet.At(0).m_vecAnime[3].m_vecFrames.clear();
  sets.Work().m_vecAnime[3].m_vecFrames.clear();
  bool commandOpen = true;
  size_t frames = 0;
  WhenModal([&](QWidget* modal) {
    cDialog& pattern = *static_cast<cDialogWindow*>(modal)->Dialog();
    commandOpen = pattern.Item(cAnimePatternDialog::kIdCommand)->isEnabled();
    frames = static_cast<size_t>(List(pattern, cAnimePatternDialog::kIdFrames)->count());
    pattern.SendCommand(MakeCommand(kIdOk, kNoticeClicked), 0);
  });
  Press(sets, kIdAnimePattern);
  EXPECT_FALSE(commandOpen);
  EXPECT_EQ(frames, 1u) << "an empty pattern gets one frame";
  const cEdAnime& slot = Sheet().Work().db.m_AnimeSet.At(0).m_vecAnime[3];
  EXPECT_EQ(slot.m_vecFrames.size(), 1u);
  EXPECT_EQ(slot.m_cSampleKind, kGraphicKindOwnBmp) << "the slot takes the set's sample";
}

TEST_F(DatabaseWindow, TheSampleNumberFollowsItsKindAndTheObjectList) {
  Open();
  auto& anime = Page<cEdAnime>(kTabAnime);
  WhenModal([](QWidget* modal) {
    auto& list = static_cast<cObjectListDialog&>(*static_cast<cDialogWindow*>(modal)->Dialog());
    list.Pick(cObjectListDialog::NumberAt(40, 70));  // second column, third row
    list.SendCommand(MakeCommand(kIdOk, kNoticeClicked), 0);
  });
  Press(anime, kIdAnimeList);
  EXPECT_EQ(anime.Work().m_iSampleNo, 17);
  EXPECT_EQ(Sheet().Work().db.m_Anime.At(1).m_iSampleNo, 17);
  EXPECT_EQ(cObjectListDialog::NumberAt(0, 0), 0) << "no picture 0";

  // Its own bitmaps run to the last entry of their list, as the page on
  // show has it.
  Choose(anime, kIdAnimeSample, kGraphicKindOwnBmp);
  EXPECT_EQ(anime.Work().m_iSampleNo, 1);
  auto& bitmaps = Page<cEdCharaBmp>(kTabCharaBmp);
  Press(bitmaps, kIdDbNew);
  Press(bitmaps, kIdDbNew);
  Page<cEdAnime>(kTabAnime);
  Retype(anime, kIdAnimeSample + 1, QStringLiteral("9"));
  EXPECT_EQ(anime.Work().m_iSampleNo, 3);
}

TEST_F(DatabaseWindow, TheCountIsOfTheRowsShown) {
  Open();
  auto& anime = Page<cEdAnime>(kTabAnime);
  Select(anime, 2);
  WhenModal([](QWidget* modal) {
    auto* edit = modal->findChild<QLineEdit*>();
    edit->selectAll();
    TypeText(edit, QStringLiteral("2"));
    QTest::keyClick(edit, Qt::Key_Return);
  });
  Press(anime, kIdDbCount);
  EXPECT_EQ(Sheet().Work().db.m_Anime.Count(), 3) << "two rows behind the reserved entry";
  EXPECT_EQ(List(anime)->count(), 2);
  EXPECT_EQ(List(anime)->currentRow(), 0) << "the selection fell off the end";
  EXPECT_EQ(ToUtf8(anime.Work().m_strName), "コイン");
}

// The list's keys reach it through the page's accelerators, and cut and
// paste overwrite in place.
TEST_F(DatabaseWindow, KeysCutAndPasteEntriesInPlace) {
  Open();
  auto& pictures = Page<cEdPicture>(kTabPicture);
  // The offscreen platform doesn't hand the activation of a window whose
  // owner is hidden on to the application; a desktop does.
  QApplication::setActiveWindow(Sheet().Window());
  QListWidget* list = List(pictures);
  list->setFocus();
  QTest::keyClick(list, Qt::Key_X, Qt::ControlModifier);
  const std::vector<cEdPicture>& entries = Sheet().Work().db.m_Picture.m_vecEntries;
  ASSERT_EQ(entries.size(), 3u);
  EXPECT_TRUE(entries[1].m_strName.empty());
  Select(pictures, 1);
  QTest::keyClick(list, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(ToUtf8(entries[2].m_strName), "背景");
  EXPECT_EQ(list->item(1)->text(), QString::fromUtf8("背景"));
  QTest::keyClick(list, Qt::Key_Delete);
  EXPECT_TRUE(entries[2].m_strName.empty()) << "Delete clears";
  EXPECT_EQ(entries.size(), 3u);
}

TEST_F(DatabaseWindow, FileFieldsStoreRelativePathsAndCanNameTheEntry) {
  Open();
  auto& pictures = Page<cEdPicture>(kTabPicture);
  Press(pictures, kIdDbSameAsFile);
  EXPECT_FALSE(pictures.Item(kIdDbName)->isEnabled());
  Retype(pictures, kIdDbPath, QStringLiteral("bmp\\Block.bmp"));
  EXPECT_EQ(pictures.Work().m_strName, "Block");
  EXPECT_EQ(List(pictures)->item(0)->text(), QStringLiteral("Block"));

  prompt.QueuePath("bmp\\picture\\sky.bmp");
  Press(pictures, kIdDbBrowse);
  EXPECT_EQ(prompt.Shown().back().caption, "ビットマップの選択");
  EXPECT_EQ(pictures.Work().m_strPath, ".\\bmp\\picture\\sky.bmp");
  EXPECT_EQ(Text(pictures, kIdDbName), QStringLiteral("sky"));
  prompt.QueuePath("\\elsewhere\\sky.bmp");
  Press(pictures, kIdDbBrowse);
  EXPECT_EQ(pictures.Work().m_strPath, ".\\bmp\\picture\\sky.bmp") << "a file outside the project isn't taken";

  auto& music = Page<cEdBgm>(kTabBgm);
  prompt.QueuePath("bgm\\Free.ogg");
  Press(music, kIdDbBrowse);
  EXPECT_EQ(prompt.Shown().back().caption, "BGMの選択");
  EXPECT_EQ(qobject_cast<QSlider*>(music.Item(kIdBgmVolume))->pageStep(), 10);
}

TEST_F(DatabaseWindow, PlayButtonsPlayTheEditedFileAndLeavingStopsTheMusic) {
  Open();
  auto& sounds = Page<cEdSound>(kTabSound);
  Press(sounds, kIdSoundPlay);
  EXPECT_EQ(WavePlayer().PlayingRow(), 0);
  Retype(sounds, kIdDbPath, QString());
  Press(sounds, kIdSoundPlay);
  EXPECT_TRUE(Told().empty()) << "an empty path plays nothing";
  Retype(sounds, kIdDbPath, QStringLiteral("wave\\missing.wav"));
  Press(sounds, kIdSoundPlay);
  EXPECT_EQ(Told(), std::vector<std::string>{"読み込み失敗！"});

  auto& music = Page<cEdBgm>(kTabBgm);
  Select(music, 1);  // フリーOGG
  Press(music, kIdSoundPlay);
  EXPECT_TRUE(MusicPlayer().IsSounding(0));
  PressSheetButton(QDialogButtonBox::RejectRole);
  EXPECT_FALSE(MusicPlayer().IsSounding(0));
}

TEST_F(DatabaseWindow, AMissingCharacterBitmapIsToldAndTheFilesAreWritten) {
  fs::remove("bmp/Character1.bmp");
  Open();
  auto& music = Page<cEdBgm>(kTabBgm);
  Retype(music, kIdBgmVolumeShown, QStringLiteral("1"));  // read-only: typing changes nothing
  Retype(music, kIdDbName, QStringLiteral("midi"));
  PressSheetButton(QDialogButtonBox::AcceptRole);
  EXPECT_EQ(Told(), (std::vector<std::string>{"bmp\\Character1.bmp の読み込みに失敗！",
                                               "キャラの専用bmpの生成に失敗しました！"}));
  EXPECT_EQ(ChangedFiles(), std::vector<size_t>{static_cast<size_t>(eDbList::Bgm)});
  EXPECT_EQ(Database().m_Bgm.At(1).m_strName, "midi");
  EXPECT_EQ(Database().m_Bgm.At(1).m_iVolume, 100);
}

// Lists beyond their limits, empty names, missing files and a pattern of
// thousands of frames, as a damaged project may hold them.
TEST_F(DatabaseWindow, ADamagedDatabaseOpensAndIsWrittenAsTheLoaderReadsIt) {
  cEdDatabase& db = Database();
  db.m_Picture.Resize(12000);
  db.m_Anime.At(1).m_strName.clear();
  db.m_Anime.At(1).m_cSampleKind = 9;
  db.m_Anime.At(1).m_vecFrames.assign(5000, cEdAnimeFrame());
  db.m_Anime.At(1).m_vecFrames[7].m_iTime = 2000000000;
  db.m_CharaBmp.At(1).m_strPath = "bmp\\gone.bmp";
  db.m_CharaEffect.At(1).m_iKind = 99;
  db.m_SwordType.At(0).m_vecPositions[0].m_iDirection = -4;
  Open();
  for (int tab : {kTabSet, kTabAnime}) {
    cDialog* page = Sheet().Page(tab);
    Sheet().Window()->findChild<QTabWidget*>()->setCurrentIndex(tab);
    for (int tick = 0; tick < 100; ++tick) page->Idle();
  }
  auto& pictures = Page<cEdPicture>(kTabPicture);
  EXPECT_EQ(List(pictures)->count(), 11999);
  Press(pictures, kIdDbNew);
  EXPECT_EQ(List(pictures)->count(), 11999) << "a list beyond its limit takes no more";
  Page<cEdCharaEffect>(kTabCharaEffect);
  Page<cEdSwordType>(kTabSword);
  PressSheetButton(QDialogButtonBox::AcceptRole);

  cEdDatabase reloaded;
  std::string failed;
  ASSERT_TRUE(reloaded.Load(failed)) << failed;
  EXPECT_EQ(reloaded.Count(eDbList::Picture), 12000);
  EXPECT_EQ(reloaded.m_Anime.At(1).m_vecFrames.size(), 5000u);
  EXPECT_EQ(reloaded.m_CharaEffect.At(1).m_iKind, 99) << "shown is not stored";
}

}  // namespace
}  // namespace velmora::testing
