#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "core/ProjectPaths.h"
#include "inspect/Inspector.h"
#include "objects/GValInfo.h"
#include "objects/Palette.h"
#include "objects/CmdTable.h"
#include "core/SystemText.h"
#include "objects/CondTables.h"
#include "objects/PaletteTables.h"
#include "objects/RefNames.h"
#include "project/Database.h"
#include "platform/TextCodec.h"
#include "project/SystemRecord.h"
#include "project/WorldMap.h"
#include "project/whereused/FileUses.h"
#include "project/whereused/PathKey.h"
#include "project/whereused/WhereUsedIndex.h"
#include "stage/Stage.h"
#include "support/TempProject.h"

namespace velmora {
namespace {

cEdCmd Cmd(int kind, std::initializer_list<std::pair<int, int>> params = {}) {
  cEdCmd cmd;
  cmd.SetUpNew(kind, false);
  for (const auto& [index, value] : params) cmd.m_vParam[static_cast<size_t>(index)] = value;
  return cmd;
}

cEdCond Cond(int kind, int leftVar) {
  cEdCond cond;
  cond.m_nKind = static_cast<uint8_t>(kind);
  cond.m_nLeftVar = static_cast<int16_t>(leftVar);
  return cond;
}

cEdCmd SummonChara(int source, int number) {
  cEdCmd summon = Cmd(kCmdSummonChara);
  summon.m_pShot->m_nSummonSrc = static_cast<uint8_t>(source);
  summon.m_pShot->m_nSummonNo = static_cast<int16_t>(number);
  return summon;
}

// A hero whose flows use common variable 12, stage variable 3 and sound 5
// in every way a flow can name them.
cEdChara Hero() {
  cEdChara hero;
  hero.m_strName = ToCp932("勇者");
  hero.m_nGraphicNo = 1;
  hero.m_vFlow.resize(2);
  hero.m_vFlow[0].m_vCond.push_back(Cond(kCondCommonVar, 12));
  hero.m_vFlow[0].m_vCmd.push_back(Cmd(kCmdStatusOp, {{0, 1}, {1, 0}, {2, 12}, {7, 4}}));
  cEdCmd code = Cmd(kCmdCode);
  code.m_strText = "C12 = rand(C12, S3) + my.C7";
  hero.m_vFlow[0].m_vCmd.push_back(code);
  hero.m_vFlow[0].m_vCmd.push_back(Cmd(kCmdSound, {{0, 5}}));
  cEdCmd flowOp = Cmd(kCmdFlowOp);
  cEdCond status = Cond(kCondStatus, 12);
  status.m_nLeftType = 1;  // 変数, common
  status.m_nRightType = 3;
  status.m_nRightScope = 1;
  status.m_nRightVar = 3;
  flowOp.m_pCondList->m_vCond.push_back(status);
  hero.m_vFlow[1].m_vCmd.push_back(flowOp);
  hero.m_vFlow[1].m_vCmd.push_back(SummonChara(1, 1));  // from the palette of whatever stage plays
  return hero;
}

void WriteCommonPalette() {
  cPalette palette;
  palette.m_vecBlockPlt.resize(2);
  palette.m_vecBlockPlt[1].m_strName = ToCp932("床");
  palette.m_vecBlockPlt[1].m_nGraphicNo = 1;
  palette.m_vecBlockPlt[1].m_nGetItemSrc = 1;
  palette.m_vecBlockPlt[1].m_nGetItemNo = 1;
  palette.m_vecCharaPlt.resize(1);
  palette.m_vecCharaPlt.push_back(Hero());
  palette.m_vecItemPlt.resize(2);
  palette.m_vecItemPlt[1].m_strName = ToCp932("薬");
  palette.m_vecItemPlt[1].m_nGraphicNo = 1;
  palette.m_vecItemPlt[1].m_nGetSound = 5;
  ASSERT_TRUE(palette.SaveFile(PathOf(ePath::CommonPalette)));
}

void WriteStages() {
  cStage stage;
  stage.InitDefault();
  stage.m_iBgm = 2;
  stage.m_vecStageVar[3].m_strName = ToCp932("鍵");
  cEdChara placed = Hero();
  placed.m_nInheritSrc = 1;
  placed.m_nInheritNo = 1;
  stage.m_vecCharaCell[static_cast<size_t>(stage.CellIndex(3, 4))] = placed;
  cEdChara summoner;
  summoner.m_strName = ToCp932("召喚師");
  summoner.m_nGraphicNo = 2;
  summoner.m_vFlow.resize(1);
  summoner.m_vFlow[0].m_vCmd.push_back(SummonChara(0, 1));
  summoner.m_vFlow[0].m_vCmd.push_back(SummonChara(1, 1));
  summoner.m_vFlow[0].m_vCmd.push_back(Cmd(kCmdPicture, {{0, 2}}));
  summoner.m_vFlow[0].m_vCmd.push_back(Cmd(kCmdGraphic, {{0, kGraphicKindOwnBmp}, {1, 1}}));
  summoner.m_vFlow[0].m_vCmd.push_back(Cmd(kCmdGetItem, {{0, 1}, {1, 1}}));  // from the stage's palette
  stage.m_vecCharaCell[static_cast<size_t>(stage.CellIndex(7, 2))] = summoner;
  // The stage's own gatekeeper, drawn from a character bitmap, and one
  // placed from it.
  cEdChara keeper;
  keeper.m_strName = ToCp932("門番");
  keeper.m_nGraphicKind = kGraphicKindOwnBmp;
  keeper.m_nGraphicNo = 1;
  stage.m_vecCharaPlt.resize(1);
  stage.m_vecCharaPlt.push_back(keeper);
  cEdChara placedKeeper = keeper;
  placedKeeper.m_nInheritSrc = kInheritStage;
  placedKeeper.m_nInheritNo = 1;
  stage.m_vecCharaCell[static_cast<size_t>(stage.CellIndex(5, 5))] = placedKeeper;
  // A chest of the stage's own palette holds the stage's own key.
  cEdItem key;
  key.m_strName = ToCp932("鍵");
  key.m_nGraphicNo = 1;
  stage.m_vecItemPlt.resize(1);
  stage.m_vecItemPlt.push_back(key);
  cEdBlock chest;
  chest.m_strName = ToCp932("宝箱");
  chest.m_nGraphicNo = 1;
  chest.m_nGetItemSrc = kInheritStage;
  chest.m_nGetItemNo = 1;
  stage.m_vecBlockPlt.resize(1);
  stage.m_vecBlockPlt.push_back(chest);
  // The sky, named in another case and with the other slash, is picture 2;
  // a layer shown as a colour uses no picture.
  stage.m_vecBack.resize(3);
  stage.m_vecBack[1].m_strPath = "BMP/back/sky.bmp";
  stage.m_vecBack[2].m_strPath = "bmp\\back\\Sky.bmp";
  stage.m_vecBack[2].m_bUseColor = 1;
  ASSERT_TRUE(stage.SaveFile("data\\stg4\\Alpha.stg4_950"));
  // An older version of the same stage is not searched; a damaged stage is
  // told and passed over.
  testing::WriteText("data/stg4/Alpha.stg4_900", "old");
  testing::WriteText("data/stg4/Beta.stg4_950", "damaged");
}

// Ten rows in every list; picture 2 is the sky behind the stage.
void WriteDatabase() {
  cEdDatabase database;
  for (int list = 0; list < static_cast<int>(eDbList::Count); ++list) database.List(static_cast<eDbList>(list)).Resize(10);
  database.m_Picture.m_vecEntries[2].m_strPath = "bmp\\back\\Sky.bmp";
  database.m_CharaBmp.m_vecEntries[1].m_strPath = "bmp\\chara_sp\\keeper.bmp";
  ASSERT_TRUE(database.Save(false));
}

void WriteWorldAndSystem() {
  cEdWorldMap map;
  cEdWorldEvent castle;
  castle.m_strName = ToCp932("城");
  castle.m_vecPages[0].m_iCondVar = 12;
  map.PlaceEvent(castle, 2, 2);
  ASSERT_TRUE(map.SaveFile(PathOf(ePath::WorldMap)));
  cEdSystem system;
  system.m_aiBgm[0] = 2;
  ASSERT_TRUE(system.SaveFile(PathOf(ePath::System)));
}

class WhereUsedTest : public ::testing::Test {
 protected:
  void SetUp() override {
    testing::MakeStageFolders();
    testing::MakeDirs("data/database");
    WriteDatabase();
    g_vecCommonVar.assign(kCommonVarCount, cStageVar());
    g_vecCommonVar[12].m_strName = ToCp932("残機");
    ASSERT_TRUE(SaveCommonVars());
    WriteCommonPalette();
    WriteStages();
    WriteWorldAndSystem();
  }
  // The inspector installs the project it reads for the checks.
  void TearDown() override {
    g_vecCommonVar.clear();
    InstallRefSizes(nullptr);
    InstallRefNames(nullptr);
    InstallPaletteLists(ePalette::Common, {});
    Database() = cEdDatabase();
  }
  testing::cTempProject project;
};

std::string ReadGolden(const std::filesystem::path& path) {
  std::ifstream in(path);
  std::stringstream text;
  text << in.rdbuf();
  return text.str();
}

// Each folder holds a query and the lines it must print.
TEST_F(WhereUsedTest, EachGoldenQueryPrintsItsLines) {
  const char* root = std::getenv("VELMORA_TEST_DATA");
  const std::filesystem::path golden = std::filesystem::path(root ? root : "tests/data") / "whereused";
  int cases = 0;
  for (const auto& folder : std::filesystem::directory_iterator(golden)) {
    std::istringstream query(ReadGolden(folder.path() / "query"));
    std::vector<std::string> args{"where-used"};
    for (std::string word; query >> word;) args.push_back(word);
    std::string out, err;
    EXPECT_EQ(0, inspect::RunInspector(args, out, err)) << err;
    EXPECT_EQ(ReadGolden(folder.path() / "expected"), out) << folder.path().filename();
    EXPECT_NE(std::string::npos, err.find("data\\stg4\\Beta.stg4_950 can't be read")) << err;
    ++cases;
  }
  EXPECT_GE(cases, 5);
}

TEST_F(WhereUsedTest, AnUpdateReadsOnlyWhatChanged) {
  cWhereUsedIndex index;
  EXPECT_EQ(5, index.Update());  // palette, two stages, world map, system
  EXPECT_EQ(std::vector<std::string>{"data\\stg4\\Beta.stg4_950"}, index.UnreadableFiles());
  EXPECT_EQ(0, index.Update());

  cStage stage;
  stage.InitDefault();
  ASSERT_TRUE(stage.SaveFile("data\\stg4\\Beta.stg4_950"));
  EXPECT_EQ(1, index.Update());
  EXPECT_TRUE(index.UnreadableFiles().empty());
  EXPECT_EQ(2u, index.Find({eUseKind::Bgm, 2}).size());  // Alpha's settings and the system

  // Cells take inherited values from the common palette as they are read,
  // so a changed palette reads every stage again.
  std::filesystem::remove("data/CommonPalette.cplt4");
  EXPECT_EQ(3, index.Update());
  EXPECT_EQ(std::vector<std::string>{"data\\CommonPalette.cplt4"}, index.UnreadableFiles());
  std::filesystem::remove("data/stg4/Alpha.stg4_950");
  index.Update();
  EXPECT_TRUE(index.Find({eUseKind::Bgm, 2}).size() == 1u);
}

TEST_F(WhereUsedTest, UnknownKindsAndNumbersAreRefused) {
  std::string out, err;
  EXPECT_EQ(2, inspect::RunInspector({"where-used", "var", "1"}, out, err));
  EXPECT_NE(std::string::npos, err.find("var-common"));
  EXPECT_EQ(2, inspect::RunInspector({"where-used", "sound", "-1"}, out, err));
  EXPECT_EQ(2, inspect::RunInspector({"where-used", "sound", "5x"}, out, err));
  // A stage's own entry means nothing without its stage.
  EXPECT_EQ(2, inspect::RunInspector({"where-used", "stage-chara", "1"}, out, err));
  EXPECT_NE(std::string::npos, err.find("--stage"));
  EXPECT_EQ(2, inspect::RunInspector({"where-used", "stage-chara", "1", "--stage", "Gamma"}, out, err));
  EXPECT_EQ(2, inspect::RunInspector({"where-used", "sound", "5", "--stages", "Alpha"}, out, err));
  EXPECT_TRUE(out.empty());
}

TEST_F(WhereUsedTest, AStageNamedInAnyCaseWithOrWithoutItsVersionKeepsItsUsesAlone) {
  for (const char* name : {"alpha", "ALPHA.stg4_950", "Alpha.stg4_900"}) {
    std::string out, err;
    EXPECT_EQ(0, inspect::RunInspector({"where-used", "bgm", "2", "--stage", name}, out, err));
    EXPECT_EQ("data\\stg4\\Alpha.stg4_950 " + ToUtf8(SysText("ステージ設定 ： BGM")) + "\n", out) << name;
  }
}

// The open stage is searched as it stands, before it is saved.
TEST_F(WhereUsedTest, TheEntriesOfAStageInMemoryAreFoundInIt) {
  cStage stage;
  ASSERT_TRUE(stage.LoadWholeFile("data\\stg4\\Alpha.stg4_950"));
  cEdChara& added = stage.m_vecCharaCell[static_cast<size_t>(stage.CellIndex(9, 9))];
  added = stage.m_vecCharaPlt[1];
  added.m_nInheritSrc = kInheritStage;
  added.m_nInheritNo = 1;
  const std::vector<cUse> uses = FindInStage(stage, {eUseKind::StageChara, 1});
  ASSERT_EQ(4u, uses.size());
  EXPECT_EQ(9, uses.back().x);
  EXPECT_EQ(ToCp932("継承元"), uses.back().what);
  EXPECT_TRUE(FindInStage(stage, {eUseKind::StageChara, 2}).empty());
}

// Two paths name one file whatever their case and slashes, but the second
// byte of a double-byte character is never taken for a letter.
TEST(PathKeyTest, FoldsCaseAndSlashesOfSingleBytesOnly) {
  EXPECT_EQ(PathKey("bmp\\back\\sky.bmp"), PathKey(".\\BMP/Back/SKY.bmp"));
  EXPECT_NE(PathKey(ToCp932("bmp\\ア.bmp")), PathKey(ToCp932("bmp\\ヂ.bmp")));
}

}  // namespace
}  // namespace velmora
