#include <gtest/gtest.h>

#include "core/ProjectPaths.h"
#include "inspect/Inspector.h"
#include "platform/HostPath.h"
#include "platform/TextCodec.h"
#include "project/Database.h"
#include "project/SampleData.h"
#include "project/SystemRecord.h"
#include "project/WorldMap.h"
#include "support/TempProject.h"

namespace velmora {
namespace {

using testing::cTempProject;
using testing::ReadBytes;

class SampleDataTest : public ::testing::Test {
 protected:
  void SetUp() override {
    g_bNoSave = 0;
    Database() = cEdDatabase();
    ASSERT_TRUE(WriteSampleDatabase(eDataFolder::Data));
    ASSERT_TRUE(WriteSampleWorldMap(eDataFolder::Data, {"data\\stg4\\Stage1.stg4_950", "data\\stg4\\Stage2.stg4_950"}));
    ASSERT_TRUE(WriteSampleSystem(eDataFolder::Data));
  }
  void TearDown() override { Database() = cEdDatabase(); }
  cTempProject project;
};

TEST_F(SampleDataTest, SampleFilesLoadAsAProjectWould) {
  std::string failed;
  ASSERT_TRUE(Database().Load(failed)) << failed;
  const cEdDatabase& db = Database();
  EXPECT_EQ(3, db.Count(eDbList::AnimeSet));
  EXPECT_EQ(3, db.Count(eDbList::Bgm));
  EXPECT_EQ("bgm\\Free.mid", db.m_Bgm.At(1).m_strPath);
  EXPECT_EQ("bgm\\Free.ogg", db.m_Bgm.At(2).m_strPath);
  EXPECT_EQ("wave\\free.wav", db.m_Sound.At(1).m_strPath);
  EXPECT_EQ(0, db.m_CharaEffect.At(0).m_iKind);
  for (int i = 0; i < kDbListCount; ++i) {
    const eDbList list = static_cast<eDbList>(i);
    EXPECT_GE(db.Count(list), DbListInfo(list).rule.least) << i;
  }

  cEdWorldMap map;
  ASSERT_EQ(1, map.LoadFile(PathOf(ePath::WorldMap)));
  ASSERT_EQ(2u, map.m_vecEvents.size());
  EXPECT_EQ(1, map.m_vecEvents[0].m_vecPages[0].m_iWorldNo);
  EXPECT_EQ(2, map.m_vecEvents[1].m_vecPages[0].m_iWorldNo);
  EXPECT_EQ("data\\stg4\\Stage2.stg4_950", map.m_vecEvents[1].m_vecPages[0].m_strStartStage);
  EXPECT_TRUE(map.HasEventAt(map.m_iStartX, map.m_iStartY));

  cEdSystem system;
  ASSERT_EQ(1, system.LoadFile(PathOf(ePath::System)));
  EXPECT_EQ(2, system.m_aiBgm[1]);
  EXPECT_EQ("wave\\free.wav", system.m_vecSounds[0]);
}

TEST_F(SampleDataTest, InspectorDumpsAndResavesEveryProjectWideFile) {
  std::vector<std::string> names = {PathOf(ePath::WorldMap), PathOf(ePath::System)};
  for (int i = 0; i < kDbListCount; ++i) names.push_back(PathOf(DbListInfo(static_cast<eDbList>(i)).file));
  for (const std::string& name : names) {
    std::string out, err;
    ASSERT_EQ(0, inspect::RunInspector({"dump", HostPath(name)}, out, err)) << name << err;
    EXPECT_NE(std::string::npos, out.find("\"version\": 950")) << name;
    ASSERT_EQ(0, inspect::RunInspector({"resave", HostPath(name), "copy.dat"}, out, err)) << name << err;
    EXPECT_EQ(ReadBytes(HostPath(name)), ReadBytes("copy.dat")) << name;
  }
  std::string out, err;
  inspect::RunInspector({"dump", "data/database/Bgm.dat"}, out, err);
  EXPECT_NE(std::string::npos, out.find("\"m_strPath\": \"bgm\\\\Free.ogg\"")) << out;
  out.clear();
  inspect::RunInspector({"dump", "data/System.dat"}, out, err);
  EXPECT_NE(std::string::npos, out.find("\"m_vecTerms\": [\"ワールド\"")) << out.substr(0, 400);
  EXPECT_NE(std::string::npos, out.find("\"m_aiBgm\": [1, 2, 0, 0, 0, 0]"));
}

}  // namespace
}  // namespace velmora
