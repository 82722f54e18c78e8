#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>

#include "core/ProjectPaths.h"
#include "core/SystemText.h"
#include "platform/HostPath.h"
#include "platform/TextCodec.h"
#include "project/Database.h"
#include "support/TempProject.h"

namespace velmora {
namespace {

using testing::cBytes;
using testing::cTempProject;
using testing::MakeDirs;
using testing::ReadBytes;
using testing::WriteBytes;

// A list file: the version word, the count, then the records as given.
std::vector<uint8_t> ListFile(uint32_t version, int32_t count, const cBytes& records) {
  cBytes file;
  file.U32(version).I32(count).Raw(records.Data().data(), records.Data().size());
  return file.Data();
}

template <class T>
cDbList<T> LoadList(uint32_t version, int32_t count, const cBytes& records) {
  WriteBytes("list.dat", ListFile(version, count, records));
  cDbList<T> list;
  EXPECT_EQ(1, list.LoadFile("list.dat"));
  return list;
}

// A record of name, flag and path: the shape of pictures, sounds and music
// in files of versions 151 and above.
void NamedFile(cBytes& b, int32_t flag, const std::string& name, const std::string& path) {
  b.I32(1).I32(flag).I32(2).Str(name).Str(path);
}

class DatabaseTest : public ::testing::Test {
 protected:
  void SetUp() override { g_bNoSave = 0; }
  cTempProject project;
};

TEST_F(DatabaseTest, OldAnimationSetsGetFourSlotsWithTheFlyingNames) {
  cBytes b;
  // Version 118: no fly shift, two slots of one frame each.
  b.I32(2).I32(3).I32(6).I32(1).Str("set");
  b.I32(2);
  for (int slot = 0; slot < 2; ++slot) b.I32(3).I16(7).U8(2).I16(1).I32(1).Str("slot").I32(1).I32(3).I32(5).I32(9).I32(0).I32(0);
  auto sets = LoadList<cEdAnimeSet>(118, 1, b);
  ASSERT_EQ(1, sets.Count());
  const cEdAnimeSet& set = sets.At(0);
  EXPECT_EQ(3, set.m_iInvincibleShift);
  EXPECT_EQ(0, set.m_iFlyShift);
  ASSERT_EQ(4u, set.m_vecAnime.size());
  EXPECT_EQ(7, set.m_vecAnime[1].m_iSampleNo);
  EXPECT_EQ(9, set.m_vecAnime[1].m_vecFrames[0].m_iTime);
  EXPECT_EQ(ToCp932("飛行"), set.m_vecAnime[2].m_strName);
  EXPECT_EQ(ToCp932("飛行移動"), set.m_vecAnime[3].m_strName);
  ASSERT_EQ(1u, set.m_vecAnime[3].m_vecFrames.size());
  EXPECT_EQ(1, set.m_vecAnime[3].m_vecFrames[0].m_iTime);
  EXPECT_EQ(kGraphicKindChara, set.m_vecAnime[3].m_cSampleKind);
}

TEST_F(DatabaseTest, AnimationsBeforeVersion55HaveNoSampleFields) {
  cBytes b;
  b.I32(0).I32(1).Str("walk").I32(2).I32(3).I32(4).I32(1).I32(0).I32(0).I32(3).I32(5).I32(6).I32(1).I32(0);
  auto anime = LoadList<cEdAnime>(54, 1, b);
  EXPECT_EQ("walk", anime.At(0).m_strName);
  EXPECT_EQ(kGraphicKindChara, anime.At(0).m_cSampleKind);
  ASSERT_EQ(2u, anime.At(0).m_vecFrames.size());
  EXPECT_EQ(6, anime.At(0).m_vecFrames[1].m_iTime);
  EXPECT_EQ(1, anime.At(0).m_vecFrames[1].m_bCommand);
}

TEST_F(DatabaseTest, NameFromFileFlagOfVersions151And152IsDropped) {
  cBytes b;
  NamedFile(b, 1, "a", "bmp\\a.bmp");
  EXPECT_EQ(0, (LoadList<cEdPicture>(152, 1, b).At(0).m_bNameFromFile));
  EXPECT_EQ(1, (LoadList<cEdPicture>(153, 1, b).At(0).m_bNameFromFile));
  EXPECT_EQ(0, (LoadList<cEdSound>(151, 1, b).At(0).m_bNameFromFile));
  auto music = LoadList<cEdBgm>(813, 1, b);
  EXPECT_EQ(100, music.At(0).m_iVolume);
  EXPECT_EQ("bmp\\a.bmp", music.At(0).m_strPath);

  cBytes chara;  // version 152: no giant fields yet
  NamedFile(chara, 1, "c", "bmp\\c.bmp");
  const cEdCharaBmp bmp = LoadList<cEdCharaBmp>(152, 1, chara).At(0);
  EXPECT_EQ(0, bmp.m_bNameFromFile);
  EXPECT_EQ(0, bmp.m_bHuge);
  EXPECT_EQ(2, bmp.m_iHugeSize);

  cBytes effect;  // version 150: no flag at all
  effect.I32(3).I32(16).I32(24).I32(1).I32(2).Str("e").Str("bmp\\e.bmp").I32(1).I32(2).I32(4).I32(7).I32(0);
  const cEdEffect loaded = LoadList<cEdEffect>(150, 1, effect).At(0);
  EXPECT_EQ(16, loaded.m_iWidth);
  EXPECT_EQ(1, loaded.m_bAllowGiant);
  EXPECT_EQ(7, loaded.m_vecFrames[0].m_iTime);
}

TEST_F(DatabaseTest, OldSwordPositionsKeepTheirFlipDefaultsAndOldListsAreCut) {
  cBytes b;
  b.I32(0).I32(3).Str("s").Str("l.bmp").Str("r.bmp").I32(1);
  b.I32(8).I32(-5).I32(6).I32(2).I32(10).I32(20).I32(30).I32(40).I32(3).I32(0);
  const cEdSwordType sword = LoadList<cEdSwordType>(137, 1, b).At(0);
  ASSERT_EQ(1u, sword.m_vecPositions.size());
  const cEdSwordPos& pos = sword.m_vecPositions[0];
  EXPECT_EQ(-5, pos.m_iOffsetX);
  EXPECT_EQ(1, pos.m_bFlipX);
  EXPECT_EQ(0, pos.m_bFlipY);
  EXPECT_EQ(2, pos.m_iDirection);
  EXPECT_EQ(3, pos.m_iTime);

  cBytes many;
  for (int i = 0; i < 130; ++i) many.I32(1).I32(0).I32(3).Str("").Str("").Str("").I32(0);
  EXPECT_EQ(128, (LoadList<cEdSwordType>(827, 130, many).Count()));
  EXPECT_EQ(130, (LoadList<cEdSwordType>(828, 130, many).Count()));
}

cBytes KindEffects(std::initializer_list<int32_t> kinds) {
  cBytes b;
  for (int32_t kind : kinds) b.I32(2).I32(kind).I32(7).I32(7).I32(7).I32(7).I32(7).I32(1).Str("k");
  return b;
}

TEST_F(DatabaseTest, EffectsBefore511TakeTheCatalogueDefaultOfTheirNewParameter) {
  auto chara = LoadList<cEdCharaEffect>(510, 5, KindEffects({3, 4, 5, 10, 13}));
  EXPECT_EQ(0, chara.At(0).m_iKind);  // the reserved entry
  EXPECT_EQ(2, chara.At(1).m_aiParam[4]);
  EXPECT_EQ(2, chara.At(2).m_aiParam[4]);
  EXPECT_EQ(2, chara.At(3).m_aiParam[3]);
  EXPECT_EQ(7, chara.At(3).m_aiParam[4]);
  for (int slot = 0; slot < 5; ++slot) EXPECT_EQ(7, chara.At(4).m_aiParam[slot]);

  auto screen = LoadList<cEdScrEffect>(510, 4, KindEffects({0, 6, 7, 10}));
  EXPECT_EQ(8, screen.At(1).m_aiParam[4]);
  EXPECT_EQ(10, screen.At(2).m_aiParam[4]);
  EXPECT_EQ(8, screen.At(3).m_aiParam[3]);
  EXPECT_EQ(7, (LoadList<cEdScrEffect>(511, 4, KindEffects({0, 6, 7, 10})).At(1).m_aiParam[4]));
}

TEST_F(DatabaseTest, ReservedEffectKindIsZeroInMemoryAndInTheNextFile) {
  auto chara = LoadList<cEdCharaEffect>(950, 2, KindEffects({3, 4}));
  EXPECT_EQ(0, chara.At(0).m_iKind);
  chara.m_vecEntries[0].m_iKind = 5;
  ASSERT_EQ(1, chara.SaveFile("out.dat"));
  cDbList<cEdCharaEffect> reread;
  reread.LoadFile("out.dat");
  EXPECT_EQ(0, reread.At(0).m_iKind);
  EXPECT_EQ(4, reread.At(1).m_iKind);
}

TEST_F(DatabaseTest, CountBelowOneKeepsTheListAndPagesGrowItToItsLeast) {
  cDbList<cEdPicture> pictures;
  pictures.Resize(3);
  WriteBytes("p.dat", ListFile(950, 0, cBytes()));
  ASSERT_EQ(1, pictures.LoadFile("p.dat"));
  EXPECT_EQ(3, pictures.Count());
  cDbList<cEdPicture> fresh;
  fresh.LoadFile("p.dat");
  EXPECT_EQ(0, fresh.Count());
  const cListRule& rule = DbListInfo(eDbList::Picture).rule;
  fresh.GrowToLeast(rule);
  EXPECT_EQ(2, fresh.Count());
  EXPECT_EQ(1, fresh.ShownCount(rule));
  // A count beyond the file is damage, not an allocation.
  WriteBytes("p.dat", ListFile(950, 0x7fffffff, cBytes()));
  EXPECT_EQ(1, fresh.LoadFile("p.dat"));
  EXPECT_EQ(2, fresh.Count());
}

TEST_F(DatabaseTest, ReferencesResolveByRowWithReservedZeroShownAsNone) {
  cEdDatabase db;
  db.m_Bgm.Resize(2);
  db.m_Bgm.m_vecEntries[1].m_strName = "song";
  db.m_AnimeSet.Resize(1);
  db.m_AnimeSet.m_vecEntries[0].m_strName = "hero";
  const std::string none = SysText("なし");
  EXPECT_EQ((std::vector<std::string>{none, "song"}), db.ChoiceLabels(eDbList::Bgm));
  EXPECT_EQ(none, db.ReferenceLabel(eDbList::Bgm, 5));
  EXPECT_EQ("hero", db.ReferenceLabel(eDbList::AnimeSet, 0));
  const cListRule& music = DbListInfo(eDbList::Bgm).rule;
  EXPECT_EQ(nullptr, db.m_Bgm.Resolve(0, music));
  EXPECT_EQ(nullptr, db.m_Bgm.Resolve(2, music));
  EXPECT_EQ("song", db.m_Bgm.Resolve(1, music)->m_strName);
  EXPECT_NE(nullptr, db.m_AnimeSet.Resolve(0, DbListInfo(eDbList::AnimeSet).rule));
  EXPECT_EQ(128, DbListInfo(eDbList::SwordType).rule.most);
  EXPECT_EQ(9999, DbListInfo(eDbList::Sound).rule.most);
}

class DatabaseFilesTest : public DatabaseTest {
 protected:
  void SetUp() override {
    DatabaseTest::SetUp();
    MakeDirs("data/database");
    cEdDatabase db;
    for (int i = 0; i < kDbListCount; ++i) db.List(static_cast<eDbList>(i)).Resize(2);
    ASSERT_TRUE(db.Save(false));
  }
  static std::string HostOf(eDbList list) { return HostPath(PathOf(DbListInfo(list).file)); }
};

TEST_F(DatabaseFilesTest, LoadStopsAtTheFirstMissingOrTooNewFileWithItsText) {
  cEdDatabase db;
  std::string failed;
  ASSERT_TRUE(db.Load(failed));
  EXPECT_EQ(2, db.Count(eDbList::Bgm));

  std::remove(HostOf(eDbList::Effect).c_str());
  cEdDatabase missing;
  EXPECT_FALSE(missing.Load(failed));
  EXPECT_EQ("data\\database\\Effect.dat", failed);
  EXPECT_EQ(0, missing.Count(eDbList::CharaEffect));
  EXPECT_EQ(ToCp932("data\\database\\Effect.dat の読み込みに失敗しました！\nこのファイルが存在しない場合は"
                    "「default」フォルダから「data」フォルダへ同名のファイルをコピーして下さい。"),
            LoadFailureText(failed));

  std::vector<uint8_t> newer = ReadBytes(HostOf(eDbList::Anime));
  newer[0] = 951 & 0xff;
  newer[1] = 951 >> 8;
  WriteBytes(HostOf(eDbList::Anime), newer);
  EXPECT_FALSE(missing.Load(failed));
  EXPECT_EQ("data\\database\\Anime.dat", failed);
  EXPECT_EQ(ToCp932("data\\database\\Anime.dat の読み込みに失敗しました！\n"
                    "実行ファイル(.exe)より上位のバージョンのファイルは使用できません。"),
            LoadFailureText(failed));
  // The upgrade pass leaves the newer file as it is.
  EXPECT_TRUE(db.Save(true));
  EXPECT_EQ(newer, ReadBytes(HostOf(eDbList::Anime)));
}

TEST_F(DatabaseFilesTest, UpgradeSaveRewritesOnlyFilesOlderThanThisBuild) {
  cBytes old;
  NamedFile(old, 0, "", "");
  NamedFile(old, 1, "s", "wave\\s.wav");
  WriteBytes(HostOf(eDbList::Sound), ListFile(600, 2, old));
  const std::vector<uint8_t> current = ReadBytes(HostOf(eDbList::Picture));
  cEdDatabase db;
  std::string failed;
  ASSERT_TRUE(db.Load(failed));
  db.m_Picture.m_vecEntries[1].m_strName = "changed";
  ASSERT_TRUE(db.Save(true));
  EXPECT_EQ(current, ReadBytes(HostOf(eDbList::Picture)));
  EXPECT_FALSE(IsOlderFile(PathOf(DbListInfo(eDbList::Sound).file), 950));
  cDbList<cEdSound> sounds;
  sounds.LoadFile(PathOf(DbListInfo(eDbList::Sound).file));
  EXPECT_EQ("wave\\s.wav", sounds.At(1).m_strPath);
}

}  // namespace
}  // namespace velmora
