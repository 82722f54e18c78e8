#include <QTest>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "EditorOnSample.h"
#include "core/SaveData.h"
#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "ui/app/HostWindow.h"
#include "ui/framework/QtText.h"

namespace velmora::testing {
namespace {

constexpr int kOpenButton = 40074;
constexpr int kOpenMenu = 40004;
constexpr int kCloseMenu = 40130;
constexpr int kSaveMenu = 40005;
constexpr int kLoadStagePalette = 40083;
constexpr int kBlockLayer = 40048;
constexpr int kPenTool = 40044;
const char kStage1Host[] = "data/stg4/Stage1.stg4_950";

// The editor on the sample's first stage, with a block just painted into
// it and not yet saved.
class StageFilesInTheEditor : public cEditorOnSample {
 protected:
  void SetUp() override {
    cEditorOnSample::SetUp();
    if (HasFatalFailure()) return;
    onDisk = ReadBytes(kStage1Host);
    // The pen on the block layer, whatever an earlier test left.
    Command(Stage(), kBlockLayer);
    Command(Palettes().Palette({0, 0}), kPenTool);
    Stage().ScrollTo(0, 0);
    PickEntry({0, 0}, 1);
    Click(Stage(), QPoint(5 * 32 + 10, 3 * 32 + 10));
    ASSERT_EQ(1, StageEdit().m_bStageChanged);
    painted = BlockAt(5, 3);
    ASSERT_NE(0, painted);
  }
  static int BlockAt(int x, int y) {
    return EditStage().m_vecBlockCell[static_cast<size_t>(EditStage().CellIndex(x, y))].m_nGraphicNo;
  }
  std::vector<std::string> CaptionsSince(size_t from) const {
    std::vector<std::string> captions;
    for (size_t i = from; i < prompt.Shown().size(); ++i) captions.push_back(prompt.Shown()[i].caption);
    return captions;
  }
  // The window built for another stage would come after 100 ms.
  void LetARebuildHappen() { QTest::qWait(250); }

  std::vector<uint8_t> onDisk;
  int painted = 0;
};

TEST_F(StageFilesInTheEditor, OpenAndCloseOnAChangedStageAskFirstAndCancelKeepsTheStage) {
  const cStageWindow* window = &Stage();
  for (const int command : {kOpenButton, kOpenMenu, kCloseMenu}) {
    const size_t from = prompt.Shown().size();
    prompt.QueueAnswer(eAnswer::Cancel);
    Command(Stage(), command);
    LetARebuildHappen();
    EXPECT_EQ(std::vector<std::string>{"保存確認"}, CaptionsSince(from)) << command << ": no file dialog after Cancel";
    EXPECT_EQ("ステージが変更された可能性があります。\n保存しますか？", prompt.Shown().back().text);
    EXPECT_EQ(window, app->StageWindow()) << command;
    EXPECT_EQ(1, StageEdit().m_bHasStage);
    EXPECT_EQ(1, StageEdit().m_bStageChanged);
    EXPECT_EQ(painted, BlockAt(5, 3));
  }
  EXPECT_EQ(onDisk, ReadBytes(kStage1Host));

  // No leaves the change behind and opens the stage asked for.
  prompt.QueueAnswer(eAnswer::No);
  prompt.QueuePath("data\\stg4\\Stage2.stg4_950");
  Command(Stage(), kOpenButton);
  LetARebuildHappen();
  EXPECT_EQ(".\\data\\stg4\\Stage2.stg4_950", StageEdit().m_strPath);
  EXPECT_TRUE(app->StageWindow()->Window()->windowTitle().endsWith(QString::fromLatin1("Stage2.stg4_950")));
  EXPECT_EQ(onDisk, ReadBytes(kStage1Host));
}

TEST_F(StageFilesInTheEditor, ABrokenStageFileLeavesTheOpenStageWholeAndTheEditorRunning) {
  ASSERT_TRUE(EditStage().SaveFile("expected.stg"));
  const std::vector<uint8_t> expected = ReadBytes("expected.stg");
  std::vector<uint8_t> broken(onDisk.begin(), onDisk.begin() + 4);
  broken.resize(300, 0xff);
  WriteBytes("data/stg4/Broken.stg4_950", broken);
  const cStageWindow* window = &Stage();

  prompt.QueueAnswer(eAnswer::No);
  prompt.QueuePath("data\\stg4\\Broken.stg4_950");
  Command(Stage(), kOpenButton);
  LetARebuildHappen();
  EXPECT_EQ("ステージファイル .\\data\\stg4\\Broken.stg4_950 の読み込みに失敗しました！", prompt.LastText());
  EXPECT_EQ(0, g_bNoSave);
  ASSERT_EQ(window, app->StageWindow()) << "the window of the stage that stays";
  EXPECT_TRUE(Stage().Window()->isVisible());
  EXPECT_EQ("data\\stg4\\Stage1.stg4_950", StageEdit().m_strPath) << "as the editor started on it";
  EXPECT_EQ(1, StageEdit().m_bStageChanged);
  EXPECT_EQ(broken, ReadBytes("data/stg4/Broken.stg4_950"));

  // A broken stage palette file changes nothing either.
  const size_t entries = EditStage().m_vecBlockPlt.size();
  MakeDirs("data/plt4");
  WriteBytes("data/plt4/Broken.plt4", broken);
  prompt.QueuePath("data\\plt4\\Broken.plt4");
  Command(Stage(), kLoadStagePalette);
  LetARebuildHappen();
  EXPECT_EQ("ステージパレットファイル data\\plt4\\Broken.plt4 の読み込みに失敗しました！", prompt.LastText());
  EXPECT_EQ(entries, EditStage().m_vecBlockPlt.size());
  EXPECT_EQ(window, app->StageWindow());

  Command(Stage(), kSaveMenu);
  EXPECT_EQ(0, StageEdit().m_bStageChanged);
  EXPECT_EQ(expected, ReadBytes(kStage1Host)) << "byte for byte the stage that was open";
}

}  // namespace
}  // namespace velmora::testing
