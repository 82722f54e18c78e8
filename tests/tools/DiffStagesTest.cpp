#include <gtest/gtest.h>
#include <png.h>

#include <filesystem>
#include <set>
#include <utility>

#include "core/SaveData.h"
#include "graphics/CharaBitmaps.h"
#include "graphics/FixedBitmaps.h"
#include "graphics/stageview/StageView.h"
#include "inspect/Inspector.h"
#include "inspect/LineDiff.h"
#include "objects/CmdTable.h"
#include "sample/SampleProject.h"
#include "stage/Stage.h"
#include "support/TempProject.h"

namespace velmora {
namespace {

constexpr char kBefore[] = "data\\stg4\\Stage1.stg4_950";
constexpr char kAfter[] = "data\\stg4\\Edited.stg4_950";

class DiffStagesTest : public ::testing::Test {
 protected:
  void SetUp() override {
    std::string error;
    ASSERT_TRUE(sample::MakeSampleProject(".", false, error)) << error;
  }
  void TearDown() override {
    FreeFixedBitmaps();
    CharaBitmaps().clear();
    g_bNoSave = 0;
  }
  testing::cTempProject project;
};

cEdChara& CharaAt(cStage& stage, int x, int y) { return stage.m_vecCharaCell[static_cast<size_t>(stage.CellIndex(x, y))]; }

// The sample's first stage with four edits: a setting, a character taken
// away, an item put down and a character given a command and more life.
void WriteEditedStage() {
  cStage stage;
  ASSERT_TRUE(stage.LoadWholeFile(kBefore));
  stage.m_iBgm = 1;
  EraseCell(CharaAt(stage, 11, 12));
  stage.m_vecItemCell[static_cast<size_t>(stage.CellIndex(5, 5))] = stage.m_vecItemCell[static_cast<size_t>(stage.CellIndex(4, 10))];
  cEdChara& slime = CharaAt(stage, 23, 12);
  slime.m_nInheritSrc = 0;  // else the save takes its values from the common palette
  slime.m_nHp = 99;
  if (slime.m_vFlow.empty()) slime.m_vFlow.resize(1);
  cEdCmd wait;
  wait.SetUpNew(kCmdWait, false);
  slime.m_vFlow[0].m_vCmd.push_back(wait);
  ASSERT_TRUE(stage.SaveFile(kAfter));
}

struct cPng {
  png_image image{};
  std::vector<uint8_t> rgb;
  bool Read(const char* path) {
    image.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_file(&image, path)) return false;
    image.format = PNG_FORMAT_RGB;
    rgb.resize(PNG_IMAGE_SIZE(image));
    return png_image_finish_read(&image, nullptr, rgb.data(), 0, nullptr) != 0;
  }
  bool IsMark(int x, int y) const {
    const uint8_t* p = &rgb[(static_cast<size_t>(y) * image.width + static_cast<size_t>(x)) * 3];
    return p[0] == RedOf(kChangeMarkColour) && p[1] == GreenOf(kChangeMarkColour) && p[2] == BlueOf(kChangeMarkColour);
  }
};

TEST_F(DiffStagesTest, KnownEditsGiveTheirLinesAndFrameExactlyTheirCells) {
  WriteEditedStage();
  std::string out, err;
  ASSERT_EQ(0, inspect::RunInspector({"diff", kBefore, kAfter, "diff.png"}, out, err)) << err;
  EXPECT_EQ(
      "settings m_iBgm: 0 -> 1\n"
      "cell 5,5 item: added 「コイン」\n"
      "cell 11,12 chara: removed 「スライム」\n"
      "cell 23,12 chara: m_nInheritSrc: 1 -> 0\n"
      "cell 23,12 chara: m_nHp: 3 -> 99\n"
      "cell 23,12 chara flow 1: + cmd 1 ◆ ウエイト ◆\n",
      out);

  cPng png;
  ASSERT_TRUE(png.Read("diff.png"));
  ASSERT_EQ(60u * 32, png.image.width);
  // The frame's left edge lies inside its own cell, where no neighbour's
  // frame reaches.
  const std::set<std::pair<int, int>> edited = {{5, 5}, {11, 12}, {23, 12}};
  std::set<std::pair<int, int>> framed;
  for (int y = 0; y < 15; ++y) {
    for (int x = 0; x < 60; ++x) {
      if (png.IsMark(x * 32 + 1, y * 32 + 16)) framed.insert({x, y});
    }
  }
  EXPECT_EQ(edited, framed);
}

TEST_F(DiffStagesTest, AStageComparedWithItselfHasNoLines) {
  std::string out, err;
  ASSERT_EQ(0, inspect::RunInspector({"diff", kBefore, kBefore}, out, err)) << err;
  EXPECT_EQ("", out);
}

TEST_F(DiffStagesTest, ADamagedFileIsToldAndNothingIsCompared) {
  std::vector<uint8_t> bytes = testing::ReadBytes("data/stg4/Stage1.stg4_950");
  bytes.resize(bytes.size() / 2);
  testing::WriteBytes("data/stg4/Cut.stg4_950", bytes);
  std::string out, err;
  EXPECT_EQ(1, inspect::RunInspector({"diff", kBefore, "data\\stg4\\Cut.stg4_950", "cut.png"}, out, err));
  EXPECT_NE(std::string::npos, err.find("Cut.stg4_950 is missing or damaged; nothing compared")) << err;
  EXPECT_EQ("", out);
  EXPECT_FALSE(std::filesystem::exists("cut.png"));
}

TEST(LineDiffTest, KeepsTheLongestCommonRunAndMarksTheRest) {
  using Lines = std::vector<std::string>;
  EXPECT_EQ((Lines{"- b", "+ x", "+ y"}), inspect::LineDiff({"a", "b", "c"}, {"a", "x", "y", "c"}));
  EXPECT_EQ((Lines{"+ a"}), inspect::LineDiff({}, {"a"}));
  EXPECT_EQ((Lines{"- a", "- a"}), inspect::LineDiff({"a", "a", "a"}, {"a"}));
  EXPECT_EQ(Lines{}, inspect::LineDiff({"a", "b"}, {"a", "b"}));
}

}  // namespace
}  // namespace velmora
