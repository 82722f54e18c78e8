#include <gtest/gtest.h>

#include "core/SystemIni.h"
#include "platform/TextCodec.h"
#include "project/Database.h"
#include "project/StreamParts.h"
#include "project/SystemIniDefaults.h"
#include "project/SystemRecord.h"
#include "support/TempProject.h"

namespace velmora {
namespace {

using testing::cBytes;
using testing::cTempProject;
using testing::ReadBytes;
using testing::WriteBytes;

class SystemRecordTest : public ::testing::Test {
 protected:
  void SetUp() override {
    g_bNoSave = 0;
    Database().m_Bgm.Resize(0);
  }
  void TearDown() override {
    g_nAppVersion = kCurrentVersion;
    Database().m_Bgm.Resize(0);
  }
  // The record's blocks alone in the layout of an older version; the parts
  // behind them are left out.
  static void WriteBlocks(cEdSystem& record, uint32_t version) {
    g_nAppVersion = version;
    DataFilePtr file = OpenWrite("s.dat");
    record.cSaveData::Save(*file);
    CloseData(file);
    g_nAppVersion = kCurrentVersion;
  }
  static cEdSystem Loaded() {
    cEdSystem loaded;
    EXPECT_EQ(1, loaded.LoadFile("s.dat"));
    return loaded;
  }
  cTempProject project;
};

std::vector<std::string> MenuTexts(const std::vector<cEdSysMenuItem>& menu) {
  std::vector<std::string> texts;
  for (const cEdSysMenuItem& item : menu) texts.push_back(item.m_strText);
  return texts;
}

// A file of version 150, written as that version did: fewer terms, menu
// entries, options and stock rows, and none of the parts added later. Its
// texts are the defaults of their time, so the repairs must give back
// exactly today's defaults.
TEST_F(SystemRecordTest, Version150FileIsBroughtUpToTodaysLayout) {
  const cEdSystem today;
  cBytes b;
  b.U32(150).I32(7).I32(500).I32(0).I32(1).I32(1).I32(0).I32(12).I32(0).I32(1).Str("Old");
  b.I32(22);
  for (int i = 0; i < 22; ++i) b.U8(1);
  b.I32(5);
  for (const cEdSysGauge& gauge : today.m_vecGauges) b.I32(3).I32(1).I32(0).I32(gauge.m_iDigits).I32(1).Str(gauge.m_strText);
  b.I32(4).I32(3).I32(4).I32(5).I32(6);
  const std::vector<std::string>& terms = today.m_vecTerms;
  std::vector<std::string> oldTerms(terms.begin(), terms.begin() + 8);
  oldTerms.insert(oldTerms.end(), terms.begin() + 10, terms.begin() + 14);
  oldTerms.insert(oldTerms.end(), terms.begin() + 17, terms.begin() + 22);
  oldTerms.insert(oldTerms.end(), terms.begin() + 28, terms.begin() + 32);
  oldTerms.resize(28, "x");
  b.I32(28);
  for (const std::string& term : oldTerms) b.Str(term);
  b.I32(17).Str("wave\\a.wav");
  for (int i = 1; i < 17; ++i) b.Str("");
  b.I32(4).I32(1).I32(2).I32(3).I32(4);
  auto menu = [&b](const std::vector<cEdSysMenuItem>& items, std::initializer_list<int> rows) {
    b.I32(static_cast<int32_t>(rows.size()));
    for (int row : rows) b.I32(1).I32(1).I32(1).Str(items[static_cast<size_t>(row)].m_strText);
  };
  menu(today.m_vecTitleMenu, {0, 1, 2, 3, 4, 5, 6});
  menu(today.m_vecMapMenu, {0, 2, 3});
  menu(today.m_vecOptionMenu, {0, 1, 2, 3, 4, 8});
  const std::pair<const char*, int> oldOptions[] = {{"WindowMode", 0}, {"Bpp", 0}, {"VSync", 3}, {"ShowFps", 1},
                                                    {"FreeStage", 0},  {"a", 0},   {"b", 0}};
  b.I32(7);
  for (auto [key, value] : oldOptions) b.I32(2).I32(0).I32(value).I32(2).Str(key).Str("");
  WriteBytes("s.dat", b.Data());

  const cEdSystem s = Loaded();
  EXPECT_EQ("Old", s.m_strGameTitle);
  EXPECT_EQ(500, s.m_i1UpScore);
  EXPECT_EQ(1, s.m_bTestFlowAlways);
  EXPECT_EQ(12, s.m_iChallengeWorlds);
  // Fields the file lacks keep the old behaviour.
  EXPECT_EQ(1, s.m_b1UpOnClear);
  EXPECT_EQ(0, s.m_bTitleImage);
  EXPECT_EQ(4, s.m_bStoryHighScore + s.m_bStoryTotalScore + s.m_bChallHighScore + s.m_bChallTotalScore);
  EXPECT_EQ(0, s.m_bStoryRetry);
  EXPECT_EQ(177, s.m_cKeyG);
  EXPECT_EQ(1, s.m_bColorAnime);
  EXPECT_EQ(1, s.m_bReplayManual);
  EXPECT_EQ(0, s.m_bShowHelp);
  EXPECT_EQ(today.m_strHelp, s.m_strHelp);
  EXPECT_EQ(1, s.m_bCompat214);
  EXPECT_EQ(1, s.m_bCompat637);
  EXPECT_EQ(0, s.m_bCompat833);
  EXPECT_EQ(0, s.m_bCompat845_4);
  EXPECT_EQ(1, s.m_bCompat913);
  EXPECT_EQ(1, s.m_iReserved696);
  // The parts grew in place.
  std::vector<uint8_t> stock(25, 1);
  stock[9] = stock[15] = 0;
  EXPECT_EQ(stock, s.m_abStock);
  EXPECT_EQ(std::vector<uint8_t>(25, 0), s.m_abStockReset);
  EXPECT_EQ((std::vector<int32_t>{0, 0, 0, 1}), s.m_abInfinite);
  EXPECT_EQ((std::vector<uint8_t>{1, 1, 1, 0, 0}), s.m_vecRanking[0].m_abColumns);
  EXPECT_EQ(0, s.m_vecRanking[3].m_bEnabled);
  EXPECT_EQ(1, s.m_vecGauges[2].m_bShowValue);
  EXPECT_EQ(33, s.m_vecGauges[3].m_iBarThreshold);
  EXPECT_EQ(0, s.m_vecGauges[4].m_iBarThreshold);
  EXPECT_EQ(today.m_vecTerms, s.m_vecTerms);
  EXPECT_EQ("wave\\a.wav", s.m_vecSounds[0]);
  EXPECT_EQ((std::vector<int32_t>{1, 2, 3, 4, 4, 4}), s.m_aiBgm);
  EXPECT_EQ(std::vector<uint8_t>(6, 1), s.m_abBgmLoop);
  EXPECT_EQ(MenuTexts(today.m_vecMapMenu), MenuTexts(s.m_vecMapMenu));
  EXPECT_EQ(MenuTexts(today.m_vecOptionMenu), MenuTexts(s.m_vecOptionMenu));
  EXPECT_EQ(0, s.m_vecOptionMenu[7].m_bEnabled);
  EXPECT_EQ(1, s.m_vecOptionMenu[8].m_bEnabled);
  ASSERT_EQ(11u, s.m_vecOptions.size());
  for (size_t i = 0; i < 11; ++i) EXPECT_EQ(today.m_vecOptions[i].m_strKey, s.m_vecOptions[i].m_strKey) << i;
  EXPECT_EQ(1, s.m_vecOptions[0].m_iDefault);
  EXPECT_EQ(2, s.m_vecOptions[3].m_iDefault);
  EXPECT_EQ(today.m_vecRankKinds, s.m_vecRankKinds);
}

TEST_F(SystemRecordTest, CompatibilityFlagsOfOldFilesFollowTheVersionRanges) {
  cEdSystem record;
  struct cCase {
    uint32_t version;
    int32_t compat833, compat845_4, compat896;
  };
  for (const cCase& c : {cCase{655, 0, 0, 0}, cCase{700, 0, 1, 0}, cCase{816, 0, 1, 0}, cCase{817, 1, 1, 0},
                         cCase{832, 1, 1, 0}, cCase{833, 0, 1, 0}, cCase{845, 0, 0, 0}, cCase{890, 0, 0, 1},
                         cCase{896, 0, 0, 0}}) {
    WriteBlocks(record, c.version);
    const cEdSystem s = Loaded();
    EXPECT_EQ(c.compat833, s.m_bCompat833) << c.version;
    EXPECT_EQ(c.compat845_4, s.m_bCompat845_4) << c.version;
    EXPECT_EQ(c.compat896, s.m_bCompat896) << c.version;
  }
  record.m_bReplaySave = 0;
  record.m_iBmpDepth = 1;
  WriteBlocks(record, 250);
  const cEdSystem s = Loaded();
  EXPECT_EQ(0, s.m_bReplayManual);
  EXPECT_EQ(0, s.m_bColorAnime);
  EXPECT_EQ(0, s.m_cKeyG);
}

TEST_F(SystemRecordTest, RoundTripKeepsEverythingButTheUnstoredReplayLists) {
  cEdSystem record;
  EXPECT_EQ(60, record.m_iFont);
  EXPECT_EQ(2, record.m_iBppDD);
  EXPECT_EQ((std::vector<int32_t>{5, 5, 5, 99}), record.m_aiLives);
  record.m_strGameTitle = ToCp932("剣と魔法");
  record.m_cKeyR = 200;
  record.m_bCompat845_4 = 1;
  record.m_abStock[24] = 1;
  record.m_vecTerms[38] = "z";
  record.m_vecOptions[8].m_strDefault = "data\\stg4\\a.stg4_950";
  record.m_vecMapMenu[2].m_bEnabled = 0;
  record.m_vecRanking[3].m_abColumns[4] = 1;
  record.m_vecReplaySaveKinds[2] = "edited";
  ASSERT_EQ(1, record.SaveFile("s.dat"));
  const cEdSystem s = Loaded();
  EXPECT_TRUE(IsSame(record, s));
  EXPECT_EQ(200, s.m_cKeyR);
  EXPECT_EQ(1, s.m_bShowHelp);
  EXPECT_EQ(record.m_abStock, s.m_abStock);
  EXPECT_EQ(record.m_vecTerms, s.m_vecTerms);
  EXPECT_EQ(record.m_vecOptions[8].m_strDefault, s.m_vecOptions[8].m_strDefault);
  EXPECT_EQ(0, s.m_vecMapMenu[2].m_bEnabled);
  EXPECT_EQ(1, s.m_vecRanking[3].m_abColumns[4]);
  EXPECT_EQ(ToCp932("全て保存"), s.m_vecReplaySaveKinds[2]);
  // Written again, the file is the same.
  const std::vector<uint8_t> first = ReadBytes("s.dat");
  cEdSystem again = s;
  ASSERT_EQ(1, again.SaveFile("s.dat"));
  EXPECT_EQ(first, ReadBytes("s.dat"));
}

TEST_F(SystemRecordTest, MusicRowsPastTheMusicListBecomeNone) {
  cEdSystem record;
  record.m_aiBgm = {1, 2, 3, 0, 7, 2};
  ASSERT_EQ(1, record.SaveFile("s.dat"));
  EXPECT_EQ((std::vector<int32_t>{1, 2, 3, 0, 7, 2}), Loaded().m_aiBgm);  // no music list read yet
  Database().m_Bgm.Resize(3);
  ASSERT_EQ(1, record.SaveFile("s.dat"));
  EXPECT_EQ((std::vector<int32_t>{1, 2, 0, 0, 0, 2}), record.m_aiBgm);
  Database().m_Bgm.Resize(2);
  EXPECT_EQ((std::vector<int32_t>{1, 0, 0, 0, 0, 0}), Loaded().m_aiBgm);
}

TEST_F(SystemRecordTest, NewerFileIsRefusedAndLeftUntouched) {
  cEdSystem record;
  record.m_strGameTitle = "kept";
  ASSERT_EQ(1, record.SaveFile("s.dat"));
  std::vector<uint8_t> bytes = ReadBytes("s.dat");
  bytes[0] = 951 & 0xff;
  bytes[1] = 951 >> 8;
  WriteBytes("s.dat", bytes);
  cEdSystem refused;
  refused.m_strGameTitle = "mine";
  EXPECT_EQ(0, refused.LoadFile("s.dat"));
  EXPECT_EQ(1, g_bFileTooNew);
  EXPECT_EQ("mine", refused.m_strGameTitle);
  EXPECT_FALSE(IsOlderFile("s.dat", kCurrentVersion));
  EXPECT_EQ(bytes, ReadBytes("s.dat"));
}

TEST_F(SystemRecordTest, SystemIniTakesItsDefaultsFromTheKeysByRow) {
  cEdSystem record;
  cSystemIniDefaults defaults;
  FillSystemIniDefaults(record, defaults);
  EXPECT_EQ(2, defaults.nDirect3D);
  EXPECT_EQ(2, defaults.nVSync);
  EXPECT_EQ(1, defaults.nDDFontCache);
  EXPECT_EQ(1, defaults.nShowFps);
  EXPECT_EQ(0, defaults.nEnglish);
  EXPECT_EQ(1, defaults.nMidiDirectMusic);
  record.m_vecOptions[8].m_strDefault = "data\\stg4\\free.stg4_950";
  record.m_vecOptions[10].m_strKey = "Midi";
  record.m_vecOptions[10].m_iDefault = 0;
  FillSystemIniDefaults(record, defaults);
  EXPECT_EQ("data\\stg4\\free.stg4_950", defaults.strFreeStage);
  cSystemIni ini;
  EXPECT_FALSE(LoadSystemIni("System.ini", ini, defaults));
  ResetSystemIni(ini, defaults);
  EXPECT_EQ(0, ini.nMidiDirectMusic);
  EXPECT_EQ(2, ini.nVSync);
}

}  // namespace
}  // namespace velmora
