#include <gtest/gtest.h>

#include <filesystem>

#include "core/ProjectPaths.h"
#include "graphics/CharaBitmaps.h"
#include "objects/RefNames.h"
#include "objects/RefSizes.h"
#include "platform/HostPath.h"
#include "platform/TextCodec.h"
#include "project/AnimeSampleRules.h"
#include "project/DatabaseListEdit.h"
#include "project/DatabaseRowText.h"
#include "project/DatabaseWork.h"
#include "project/EffectKindRules.h"
#include "project/FileFieldRules.h"
#include "project/ProjectLoad.h"
#include "project/WorldMap.h"
#include "sample/SampleProject.h"
#include "support/BeepCounter.h"
#include "support/ScriptedPrompt.h"
#include "support/TempProject.h"

namespace velmora {
namespace {

namespace fs = std::filesystem;
using testing::ReadBytes;

std::vector<std::string> Names(const std::vector<cEdPicture>& list) {
  std::vector<std::string> names;
  for (const cEdPicture& entry : list) names.push_back(entry.m_strName);
  return names;
}

std::vector<cEdPicture> Pictures(std::initializer_list<const char*> names) {
  std::vector<cEdPicture> list;
  for (const char* name : names) {
    list.emplace_back();
    list.back().m_strName = name;
  }
  return list;
}

class DbListEditTest : public ::testing::Test {
 protected:
  void Open(const cListRule& rule) {
    edit.m_lpWork = &work;
    edit.SetList(&list, rule);
  }
  testing::cBeepCounter beeps;
  std::vector<cEdPicture> list = Pictures({"reserved", "a", "b", "c"});
  cEdPicture work;
  cDbListEdit<cEdPicture> edit;
};

TEST_F(DbListEditTest, ReservedIndexZeroStaysOutOfRowsAndCounts) {
  Open({true, 2, 999});
  EXPECT_EQ(edit.Count(), 3);
  EXPECT_EQ(edit.GetSel(), 1);
  EXPECT_EQ(work.m_strName, "a");
  // "データ数" counts shown rows: 5 rows are 6 entries.
  ASSERT_TRUE(edit.SetCount(5));
  EXPECT_EQ(list.size(), 6u);
  EXPECT_FALSE(edit.SetCount(0));
  Open({false, 1, 128});
  EXPECT_EQ(edit.Count(), 6);
  EXPECT_EQ(work.m_strName, "reserved");
}

TEST_F(DbListEditTest, CutAndPasteOverwriteInPlaceSoThatNoReferenceMoves) {
  Open({true, 2, 999});
  edit.SelectOnly(0, true);
  ASSERT_TRUE(edit.Cut());
  EXPECT_EQ(Names(list), (std::vector<std::string>{"reserved", "", "b", "c"}));
  EXPECT_TRUE(work.m_strName.empty());

  edit.SelectOnly(2, true);
  ASSERT_TRUE(edit.Paste());
  EXPECT_EQ(Names(list), (std::vector<std::string>{"reserved", "", "b", "a"}));
  EXPECT_EQ(work.m_strName, "a");

  // Two entries pasted on the last row: the second would lie past the end.
  edit.SelectOnly(1, true);
  edit.OnChange(1, {0, 1, 1}, 2);
  ASSERT_TRUE(edit.Copy());
  ASSERT_EQ(edit.m_vecBuffer.size(), 2u);
  edit.SelectOnly(2, true);
  ASSERT_TRUE(edit.Paste());
  EXPECT_EQ(Names(list), (std::vector<std::string>{"reserved", "", "b", "b"}));
  EXPECT_EQ(beeps.beeps, 1);
  EXPECT_EQ(list.size(), 4u);
}

TEST_F(DbListEditTest, AppendStopsAtTheLimitOfShownRows) {
  Open({true, 2, 4});
  ASSERT_TRUE(edit.Append());
  EXPECT_EQ(edit.GetSel(), 4);
  EXPECT_TRUE(work.m_strName.empty());
  EXPECT_FALSE(edit.Append());
  EXPECT_EQ(beeps.beeps, 1);
  EXPECT_EQ(list.size(), 5u);
}

TEST(EffectKindRulesTest, OnlyTheAuthorsChoiceOfAnotherKindFillsDefaults) {
  const cEffectCatalog& chara = CharaEffectCatalog();
  cEffectKindTracker tracker;
  int32_t params[5] = {7, 7, 7, 7, 7};
  EXPECT_FALSE(tracker.KindChosen(chara, 4, params)) << "the very first display changes nothing";
  EXPECT_EQ(params[0], 7);

  tracker.RecordShown(4);
  ASSERT_TRUE(tracker.KindChosen(chara, 6, params));
  EXPECT_EQ(std::vector<int32_t>(params, params + 5), (std::vector<int32_t>{10, 2, 0, 0, 0}));
  EXPECT_FALSE(tracker.KindChosen(chara, 6, params)) << "the same kind again";

  params[1] = 99;
  tracker.RecordShown(13);  // another record
  tracker.RecordShown(6);   // and back
  EXPECT_EQ(params[1], 99);
}

TEST(EffectKindRulesTest, ViewsTellLabelsLimitsAndTheColourSwatch) {
  const cEffectKindView colour = EffectKindView(CharaEffectCatalog(), kColourChangeKind, true);
  EXPECT_TRUE(colour.colourSwatch);
  EXPECT_EQ(colour.params[kColourSlot].label, ToCp932("色"));
  EXPECT_EQ(colour.params[kColourSlot].minimum, 16);
  EXPECT_EQ(colour.params[kColourSlot].maximum, 207);
  EXPECT_FALSE(colour.params[4].enabled);

  const cEffectKindView blink = EffectKindView(CharaEffectCatalog(), 6, true);
  EXPECT_FALSE(blink.colourSwatch);
  EXPECT_TRUE(blink.params[1].enabled);
  EXPECT_FALSE(blink.params[2].enabled);
  EXPECT_EQ(blink.note, ToCp932("Direct3D有効時：速い\nDirect3D無効時：速い"));

  const cEffectKindView screen = EffectKindView(ScrEffectCatalog(), kColourChangeKind, false);
  EXPECT_FALSE(screen.colourSwatch) << "screen kind 13 is a mosaic";
  EXPECT_EQ(EffectKindView(ScrEffectCatalog(), 11, false).params[2].maximum, 6400);
}

TEST(FileFieldRulesTest, ChosenFilesAreStoredRelativeAndNameTheirEntry) {
  std::string stored = "kept";
  ASSERT_TRUE(StoredFileChoice("bmp\\picture\\a.bmp", stored));
  EXPECT_EQ(stored, ".\\bmp\\picture\\a.bmp");
  ASSERT_TRUE(StoredFileChoice(".\\wave\\b.wav", stored));
  EXPECT_EQ(stored, ".\\wave\\b.wav");
  EXPECT_FALSE(StoredFileChoice("\\tmp\\c.bmp", stored));
  EXPECT_FALSE(StoredFileChoice("C:\\c.bmp", stored));
  EXPECT_FALSE(StoredFileChoice(std::string(259, 'a'), stored));
  EXPECT_EQ(stored, ".\\wave\\b.wav");

  // ソ ends in the byte of a backslash; it is no folder.
  EXPECT_EQ(NameFromPath(".\\bmp\\" + ToCp932("ソード.bmp"), 12), ToCp932("ソード"));
  EXPECT_EQ(NameFromPath("bgm\\Free.mid", 12), "Free");
  EXPECT_EQ(NameFromPath("wave\\noext", 12), "noext");
  EXPECT_EQ(NameFromPath(ToCp932("あいうえおかきく.bmp"), 12), ToCp932("あいうえおか"));
  EXPECT_EQ(NameFromPath(ToCp932("aあいうえおかきく.bmp"), 12), ToCp932("aあいうえお")) << "no half character";

  const cFilePrompt bgm = FileFieldPrompt(eFileField::Bgm);
  EXPECT_EQ(bgm.title, ToCp932("BGMの選択"));
  EXPECT_EQ(bgm.filter, std::string("BgmFile ( *.mid;*.ogg )\0*.mid;*.ogg\0", 36));
  EXPECT_EQ(bgm.folder, "bgm\\");
  EXPECT_EQ(FileFieldPrompt(eFileField::CharaBmp).folder, "bmp\\chara_sp\\");
}

TEST(DatabaseRowTextTest, RowsOfTheNestedLists) {
  cEdSwordPos pos;
  pos.m_iDirection = 2;
  pos.m_iSrcX = 64;
  pos.m_iSrcY = 32;
  pos.m_iWidth = 48;
  pos.m_iHeight = 16;
  pos.m_iTime = 3;
  EXPECT_EQ(SwordPosRowText(pos), ToCp932("上(64,32) 横48 縦16 時間3"));
  pos.m_iDirection = 9;
  EXPECT_EQ(SwordPosRowText(pos), ToCp932("(64,32) 横48 縦16 時間3"));

  cEdAnimeFrame frame;
  frame.m_iCell = 3;
  frame.m_iTime = 4;
  EXPECT_EQ(AnimeFrameRowText(frame), "3-4");
  frame.m_bCommand = 1;
  EXPECT_EQ(AnimeFrameRowText(frame), ToCp932("実行 3-4"));

  cEdAnime slot;
  slot.m_strName = ToCp932("立ち");
  slot.m_vecFrames.resize(3);
  EXPECT_EQ(AnimeSlotRowText(slot), ToCp932("立ち ×3"));
}

TEST(AnimeSampleRulesTest, KindsSetTheRangesOfNumberAndCell) {
  const cSampleLimits chara = SampleLimits(kGraphicKindChara, 5);
  EXPECT_EQ(chara.numberMax, 119);
  EXPECT_TRUE(chara.cellEnabled);
  EXPECT_EQ(chara.cellMax, 19);
  EXPECT_TRUE(chara.listEnabled);

  EXPECT_EQ(SampleLimits(kGraphicKindOwnBmp, 5).numberMax, 4);
  EXPECT_EQ(SampleLimits(kGraphicKindOwnBmp, 9).numberMax, 8);
  EXPECT_EQ(SampleLimits(kGraphicKindOwnBmp, 0).numberMax, 1);
  EXPECT_EQ(SampleLimits(kGraphicKindOwnBmp, 5).cellMax, 239);
  EXPECT_FALSE(SampleLimits(kGraphicKindOwnBmp, 5).listEnabled);

  const cSampleLimits block = SampleLimits(kGraphicKindBlock, 5);
  EXPECT_FALSE(block.cellEnabled);
  EXPECT_TRUE(block.listEnabled);
}

// The sample project, loaded as the editor opens it.
class DatabaseWorkTest : public ::testing::Test {
 protected:
  void SetUp() override {
    std::string error;
    ASSERT_TRUE(sample::MakeSampleProject(project.Path(), false, error)) << error;
    ASSERT_TRUE(LoadProject());
    for (int i = 0; i < kDbListCount; ++i) before.push_back(ReadBytes(HostPath(FileOf(static_cast<eDbList>(i)))));
    worldMap = ReadBytes(HostPath(PathOf(ePath::WorldMap)));
  }
  void TearDown() override {
    InstallRefSizes(nullptr);
    InstallRefNames(nullptr);
    Database() = cEdDatabase();
    WorldMap() = cEdWorldMap();
    CharaBitmaps().clear();
  }
  static std::string FileOf(eDbList list) { return PathOf(DbListInfo(list).file); }

  testing::cTempProject project;
  testing::cScriptedPrompt prompt;
  std::vector<std::vector<uint8_t>> before;
  std::vector<uint8_t> worldMap;
};

TEST_F(DatabaseWorkTest, OkWritesTheChangeAndLeavesEveryOtherByte) {
  cDatabaseWork work = OpenDatabaseWork();
  cEdAnime anime;
  anime.m_strName = "three";
  anime.m_vecFrames.resize(3);
  work.db.m_Anime.m_vecEntries.push_back(anime);
  EXPECT_EQ(Database().Count(eDbList::Anime), 4) << "the project's list waits for OK";

  ASSERT_TRUE(ApplyDatabaseWork(work));
  EXPECT_TRUE(prompt.Shown().empty()) << prompt.LastText();
  for (int i = 0; i < kDbListCount; ++i) {
    const eDbList list = static_cast<eDbList>(i);
    if (list == eDbList::Anime) continue;
    EXPECT_EQ(ReadBytes(HostPath(FileOf(list))), before[static_cast<size_t>(i)]) << i;
  }
  EXPECT_EQ(ReadBytes(HostPath(PathOf(ePath::WorldMap))), worldMap);

  cDbList<cEdAnime> reloaded;
  ASSERT_TRUE(reloaded.LoadFile(FileOf(eDbList::Anime)));
  ASSERT_EQ(reloaded.Count(), 5);
  EXPECT_EQ(reloaded.At(4).m_strName, "three");
  EXPECT_EQ(reloaded.At(4).m_vecFrames.size(), 3u);
}

TEST_F(DatabaseWorkTest, EmptyListsGrowToTheirLeastWhenTheWindowOpens) {
  Database().m_Anime.m_vecEntries.clear();
  Database().m_SwordType.m_vecEntries.clear();
  WorldMap().m_vecChips.clear();
  const cDatabaseWork work = OpenDatabaseWork();
  EXPECT_EQ(work.db.Count(eDbList::Anime), 2);
  EXPECT_EQ(work.db.Count(eDbList::SwordType), 1);
  EXPECT_EQ(work.chips.size(), 1u);
  EXPECT_EQ(Database().Count(eDbList::Anime), 2) << "the record rule grows the list itself";
}

TEST_F(DatabaseWorkTest, AMissingCharacterBitmapIsToldTwiceAndTheFilesAreStillWritten) {
  fs::remove("bmp/Character1.bmp");
  fs::remove(HostPath(FileOf(eDbList::Bgm)));
  cDatabaseWork work = OpenDatabaseWork();
  work.db.m_Bgm.At(1).m_iVolume = 55;
  ApplyDatabaseWork(work);
  ASSERT_EQ(prompt.Shown().size(), 2u);
  EXPECT_EQ(prompt.Shown()[0].text, "bmp\\Character1.bmp の読み込みに失敗！");
  EXPECT_EQ(prompt.Shown()[1].text, "キャラの専用bmpの生成に失敗しました！");
  cDbList<cEdBgm> bgm;
  ASSERT_TRUE(bgm.LoadFile(FileOf(eDbList::Bgm)));
  EXPECT_EQ(bgm.At(1).m_iVolume, 55);
}

}  // namespace
}  // namespace velmora
