#include <gtest/gtest.h>

#include "core/EditConfig.h"
#include "core/ProjectPaths.h"
#include "platform/FileSystem.h"
#include "project/WorldMapEditor.h"
#include "project/WorldTemplates.h"
#include "support/ScriptedPrompt.h"
#include "support/TempProject.h"

namespace velmora {
namespace {

using testing::cScriptedPrompt;
using testing::cTempProject;

constexpr uint64_t kPlenty = uint64_t(1) << 40;

// A 20 x 15 map with ten chips, every cell 1, and an editor over it whose
// event dialog answers from `dialogAnswers` (OK while it holds true) and
// writes `dialogName` into what it edits.
class WorldMapEditorTest : public ::testing::Test {
 protected:
  void SetUp() override {
    map.m_vecChips.resize(10);
    for (int y = 0; y < map.m_nHeight; ++y) {
      for (int x = 0; x < map.m_nWidth; ++x) map.SetCell(x, y, 1);
    }
    state.m_history.freeMemory = [this] { return freeMemory; };
    config.m_bEditIfPlaced = 0;
    config.m_bEditBeforePlace = 0;
    config.m_bAutoWorldNumber = 1;
    editor.editEvent = [this](cEdWorldEvent& event, bool isNew) {
      dialogs.push_back(isNew);
      event.m_strName = dialogName;
      return dialogOk;
    };
  }

  void ChooseTemplate(int index) {
    state.SetMode(kWorldEventMode);
    state.SelectTemplate(map.m_vecTemplates, index);
  }
  void Click(int x, int y) { editor.Press(x, y, false); }
  int WorldNoAt(int x, int y) const { return map.EventAt(x, y)->m_vecPages.at(0).m_iWorldNo; }

  cEdWorldMap map;
  cEdWorldEditState state;
  EditConfig config;
  cWorldMapEditor editor{map, state, config};
  uint64_t freeMemory = kPlenty;
  std::vector<bool> dialogs;  // isNew of each dialog opened
  bool dialogOk = true;
  std::string dialogName = "edited";
};

TEST_F(WorldMapEditorTest, TheBrushSkipsCellsOffTheMapAndValuesThatNameNoChip) {
  state.m_iBrushW = state.m_iBrushH = 3;
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 3; ++column) state.m_aiBrush[row * 200 + column] = 5;
  }
  Click(19, 0);
  EXPECT_EQ(map.Cell(19, 0), 5);
  EXPECT_EQ(map.Cell(19, 2), 5);
  EXPECT_EQ(map.Cell(18, 0), 1) << "the brush starts at the cursor";
  EXPECT_EQ(map.m_vecCells[20], 0) << "the two columns past the last are skipped, not wrapped into the stride";

  map.SetCell(2, 2, 7);
  editor.Press(2, 2, true);
  EXPECT_EQ(state.m_bPicking, 1);
  EXPECT_EQ(state.m_iCurrent, -1);
  editor.RightRelease(1, 3);
  EXPECT_EQ(state.m_iBrushW, 2) << "a pick in any direction";
  EXPECT_EQ(state.m_iBrushH, 2);
  EXPECT_EQ(state.BrushAt(1, 0), 7);
  map.m_vecChips.resize(5);
  Click(10, 10);
  EXPECT_EQ(map.Cell(10, 10), 1);
  EXPECT_EQ(map.Cell(11, 10), 1) << "chip 7 is gone from the list: its brush cell paints nothing";
  editor.LeftDrag(10, 12);
  EXPECT_EQ(map.Cell(10, 13), 1);
}

TEST_F(WorldMapEditorTest, TheHistoryHoldsThreeStatesAndGoesWhenMemoryIsShort) {
  state.SelectChip(2);
  for (int x = 0; x < 4; ++x) Click(x, 0);  // four strokes, four states
  EXPECT_EQ(state.m_history.UndoStates(), 3u);
  EXPECT_TRUE(editor.Undo());
  EXPECT_TRUE(editor.Undo());
  EXPECT_TRUE(editor.Undo());
  EXPECT_FALSE(editor.Undo()) << "the first state fell off";
  EXPECT_EQ(map.Cell(0, 0), 2);
  EXPECT_EQ(map.Cell(1, 0), 1);
  EXPECT_TRUE(editor.Redo());
  EXPECT_EQ(map.Cell(1, 0), 2);
  Click(5, 5);
  EXPECT_FALSE(editor.Redo()) << "a new stroke empties redo";

  freeMemory = EstimateWorldState(map);
  Click(6, 6);
  EXPECT_EQ(map.Cell(6, 6), 2) << "the stroke goes on without its state";
  EXPECT_EQ(state.m_history.UndoStates(), 0u);
  freeMemory = kPlenty;

  Click(7, 7);
  cWorldSettings settings = SettingsOf(map);
  settings.width = 40;
  editor.ApplySettings(settings);
  EXPECT_EQ(map.m_nPitch, 64);
  EXPECT_FALSE(editor.Undo()) << "states in the old stride are gone with the resize";
  EXPECT_EQ(map.Cell(7, 7), 2);
}

TEST_F(WorldMapEditorTest, ModesKeepTheirOwnSelection) {
  state.SelectChip(4);
  ChooseTemplate(0);
  EXPECT_EQ(state.m_iCurrent, 0);
  state.SelectTemplate(map.m_vecTemplates, -1);
  EXPECT_EQ(state.m_iBrushW, 0);
  state.ToggleMode();
  EXPECT_EQ(state.m_iMode, kWorldChipMode);
  EXPECT_EQ(state.m_iCurrent, 4);
  EXPECT_EQ(state.m_iBrushW, 1);
  state.ToggleMode();
  EXPECT_EQ(state.m_iCurrent, -1);
  Click(3, 3);
  EXPECT_FALSE(map.HasEventAt(3, 3)) << "no template, nothing placed";
}

TEST_F(WorldMapEditorTest, WorldNumbersLeaveOutTheEventAboutToBeReplacedAndFollowUndo) {
  ChooseTemplate(0);
  Click(1, 1);
  Click(2, 1);
  EXPECT_EQ(WorldNoAt(1, 1), 1);
  EXPECT_EQ(WorldNoAt(2, 1), 2);
  Click(1, 1);
  EXPECT_EQ(WorldNoAt(1, 1), 1) << "the replaced event's number is free again";

  map.EventAt(2, 1)->m_vecPages[0].m_iWorldNo = 9;  // as an edit in the dialog leaves it
  Click(5, 5);
  EXPECT_TRUE(editor.Undo());
  EXPECT_EQ(WorldNoAt(2, 1), 9) << "undo of a later action leaves the number that the state held";
  EXPECT_FALSE(map.HasEventAt(5, 5));

  config.m_bAutoWorldNumber = 0;
  Click(6, 6);
  EXPECT_EQ(WorldNoAt(6, 6), 0);
}

TEST_F(WorldMapEditorTest, PlacingOptionsOpenTheDialogAndItsOkKeepsAnUndoState) {
  ChooseTemplate(0);
  config.m_bEditBeforePlace = 1;
  dialogOk = false;
  Click(4, 4);
  EXPECT_EQ(dialogs, std::vector<bool>{true});
  EXPECT_FALSE(map.HasEventAt(4, 4)) << "Cancel places nothing";
  EXPECT_EQ(state.m_history.UndoStates(), 0u);
  dialogOk = true;
  Click(4, 4);
  EXPECT_EQ(map.EventAt(4, 4)->m_strName, "edited");
  EXPECT_EQ(state.m_history.UndoStates(), 1u);

  config.m_bEditIfPlaced = 1;
  dialogName = "again";
  Click(4, 4);
  EXPECT_EQ(dialogs, (std::vector<bool>{true, true, false}));
  EXPECT_EQ(map.EventAt(4, 4)->m_strName, "again");
  EXPECT_EQ(map.m_vecEvents.size(), 1u);
  EXPECT_TRUE(editor.Undo());
  EXPECT_EQ(map.EventAt(4, 4)->m_strName, "edited");
}

TEST_F(WorldMapEditorTest, PopupCommandsShareOneClipboardWithTheTemplateList) {
  ChooseTemplate(0);
  Click(1, 1);
  EXPECT_TRUE(editor.RightRelease(1, 1)) << "the right button opens the pop-up in event mode";
  EXPECT_FALSE(editor.PopupEnabled(eWorldPopup::Paste, 1, 1));
  EXPECT_FALSE(editor.PopupEnabled(eWorldPopup::Cut, 2, 2));
  editor.RunPopup(eWorldPopup::Cut, 1, 1);
  EXPECT_FALSE(map.HasEventAt(1, 1));
  editor.RunPopup(eWorldPopup::Paste, 3, 3);
  editor.RunPopup(eWorldPopup::Paste, 4, 3);
  EXPECT_EQ(WorldNoAt(3, 3), 1);
  EXPECT_EQ(WorldNoAt(4, 3), 2);
  editor.RunPopup(eWorldPopup::Delete, 3, 3);
  EXPECT_FALSE(map.HasEventAt(3, 3));
  editor.RunPopup(eWorldPopup::New, 3, 3);
  EXPECT_EQ(map.EventAt(3, 3)->m_strName, "edited");
  EXPECT_EQ(WorldNoAt(3, 3), 1);

  cWorldTemplateList templates(map, state);
  templates.SelectOnly(0, true);
  map.m_vecTemplates[0].m_strName = "palette";
  ASSERT_TRUE(templates.Copy());
  editor.RunPopup(eWorldPopup::Paste, 8, 8);
  EXPECT_EQ(map.EventAt(8, 8)->m_strName, "palette");
  editor.RunPopup(eWorldPopup::Copy, 3, 3);
  ASSERT_TRUE(templates.Paste());
  EXPECT_EQ(map.m_vecTemplates.at(0).m_strName, "edited");
  templates.SelectOnly(1, true);
  templates.ShareSelection();
  EXPECT_EQ(state.m_iCurrent, 1);
  EXPECT_EQ(state.m_Template.m_strName, "palette");
}

class WorldMapFileTest : public WorldMapEditorTest {
 protected:
  void SetUp() override {
    WorldMapEditorTest::SetUp();
    MakeDirectory("data");
    ASSERT_TRUE(map.SaveFile(PathOf(ePath::WorldMap)));
  }
  cTempProject project;
  cScriptedPrompt prompt;
};

TEST_F(WorldMapFileTest, APressAloneAsksAtClosingAndTheAnswerDecides) {
  EXPECT_TRUE(editor.AskBeforeClose());
  EXPECT_TRUE(prompt.Shown().empty()) << "nothing touched, nothing asked";
  editor.Press(0, 0, false);
  EXPECT_EQ(state.m_bWorldDirty, 1);
  EXPECT_FALSE(editor.AskBeforeClose()) << "Cancel keeps the window";
  ASSERT_EQ(prompt.Shown().size(), 1u);
  EXPECT_EQ(prompt.Shown()[0].caption, "保存確認");
  EXPECT_EQ(prompt.Shown()[0].text, "ワールドマップが変更された可能性があります。\n保存しますか？");

  state.SelectChip(3);
  Click(0, 0);
  prompt.QueueAnswer(eAnswer::No);
  EXPECT_TRUE(editor.AskBeforeClose());
  EXPECT_EQ(map.Cell(0, 0), 1) << "No reads the file again";
  EXPECT_EQ(state.m_history.UndoStates(), 0u);

  Click(0, 0);
  prompt.QueueAnswer(eAnswer::Yes);
  EXPECT_TRUE(editor.AskBeforeClose());
  EXPECT_EQ(state.m_bWorldDirty, 0);
  cEdWorldMap saved;
  ASSERT_TRUE(saved.LoadWholeFile(PathOf(ePath::WorldMap)));
  EXPECT_EQ(saved.Cell(0, 0), 3);
  EXPECT_FALSE(FileExists(PathOf(ePath::WorldMap) + ".new"));
}

TEST_F(WorldMapFileTest, ClearingAsksFirst) {
  ChooseTemplate(0);
  Click(1, 1);
  editor.ClearEvents();
  EXPECT_TRUE(map.HasEventAt(1, 1));
  EXPECT_EQ(prompt.LastText(), "全てのイベントをクリアしますか？");
  EXPECT_EQ(prompt.Shown().back().caption, "データクリアの確認");
  prompt.QueueAnswer(eAnswer::Yes);
  editor.ClearEvents();
  EXPECT_TRUE(map.m_vecEvents.empty());
  prompt.QueueAnswer(eAnswer::Yes);
  editor.ClearChips();
  EXPECT_EQ(prompt.LastText(), "全てのマップチップをクリアしますか？");
  EXPECT_EQ(map.Cell(5, 5), 0);
  EXPECT_TRUE(editor.Undo());
  EXPECT_EQ(map.Cell(5, 5), 1);
}

}  // namespace
}  // namespace velmora
