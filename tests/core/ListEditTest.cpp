#include <gtest/gtest.h>

#include "core/ListCommands.h"
#include "core/ListEdit.h"
#include "core/ListMove.h"
#include "support/BeepCounter.h"

namespace velmora {
namespace {

struct sItem {
  int value = 7;
  bool operator==(const sItem&) const = default;
};

class ListEdit : public ::testing::Test {
 protected:
  void SetUp() override {
    list.m_lpData = &data;
    list.m_lpWork = &work;
    list.m_RowText = [](int, const sItem& e) { return std::to_string(e.value); };
  }
  void Fill(std::initializer_list<int> values) {
    data.clear();
    for (int v : values) data.push_back({v});
    list.Fill();
  }
  std::vector<int> Values() const {
    std::vector<int> out;
    for (const sItem& e : data) out.push_back(e.value);
    return out;
  }
  void MultiSelect(std::initializer_list<int> rows, int sel) {
    list.m_bMulti = true;
    list.m_vecSelFlag.assign(list.RowCount(), 0);
    for (int r : rows) list.m_vecSelFlag[r] = 1;
    list.m_nSel = sel;
  }

  testing::cBeepCounter control;
  std::vector<sItem> data;
  sItem work{-1};
  cListEdit<sItem> list;
};

TEST_F(ListEdit, RowsAreNumberedToTheWidthOfTheCountAndSkipHiddenHead) {
  list.m_bNumber = true;
  data.assign(100, sItem{3});
  std::vector<std::string> rows = list.Fill();
  ASSERT_EQ(rows.size(), 100u);
  EXPECT_EQ(rows[0], "001 3");
  EXPECT_EQ(rows[99], "100 3");

  list.m_nHead = 1;
  list.m_bTailRow = true;
  list.m_strTail = "new";
  rows = list.Fill();
  ASSERT_EQ(rows.size(), 100u);  // 99 shown elements and the tail row
  EXPECT_EQ(rows[0], "01 3");
  EXPECT_EQ(rows.back(), "new");
}

TEST_F(ListEdit, SelectionAndWorkingRecordFollowHeadAndTailRow) {
  list.m_nHead = 1;
  list.m_bTailRow = true;
  Fill({10, 20, 30});
  list.Select(0, true);
  EXPECT_EQ(list.GetSel(), 1);
  EXPECT_EQ(work.value, 20);  // row 0 stands for the second element
  list.Select(2, true);       // the tail row
  EXPECT_EQ(list.GetSel(), -1);
  EXPECT_EQ(work.value, 7);   // blank record
  EXPECT_FALSE(list.Clear());
  EXPECT_EQ(Values(), (std::vector<int>{10, 20, 30}));
  EXPECT_EQ(control.beeps, 1);
}

TEST_F(ListEdit, StoreWritesTheWorkingRecordBack) {
  Fill({1, 2});
  list.Select(1, true);
  work.value = 99;
  list.Store();
  EXPECT_EQ(Values(), (std::vector<int>{1, 99}));
}

TEST_F(ListEdit, PasteStopsAtTheMaximumAndDropsTheRestOfTheBuffer) {
  list.m_nMax = 4;
  Fill({1, 2, 3});
  list.Select(0, true);
  MultiSelect({0, 1}, 0);
  ASSERT_TRUE(list.Copy());
  list.m_bMulti = false;
  list.Select(1, true);
  EXPECT_TRUE(list.Paste());
  EXPECT_EQ(Values(), (std::vector<int>{1, 1, 2, 3}));
  EXPECT_EQ(work.value, 1);
  EXPECT_EQ(control.beeps, 1);
  EXPECT_FALSE(list.Paste());  // full
  EXPECT_FALSE(list.Append());
  EXPECT_FALSE(list.Insert());
  EXPECT_EQ(control.beeps, 4);
  EXPECT_EQ(data.size(), 4u);
}

TEST_F(ListEdit, CopyWithoutSelectionBeepsAndCutEndsAsOperationZero) {
  Fill({1, 2, 3});
  EXPECT_FALSE(list.Copy());
  EXPECT_EQ(control.beeps, 1);
  list.Select(1, true);
  EXPECT_TRUE(list.Cut());
  EXPECT_EQ(list.m_nLastOp, 0);
  EXPECT_EQ(Values(), (std::vector<int>{1, 3}));
  ASSERT_EQ(list.m_vecBuffer.size(), 1u);
  EXPECT_EQ(list.m_vecBuffer[0].value, 2);
  EXPECT_EQ(work.value, 3);
}

TEST_F(ListEdit, AppendAndInsertAddDefaultsAndLoadThem) {
  list.m_SetDefaults = [](sItem& e) { e.value = 50; };
  Fill({1, 2});
  EXPECT_TRUE(list.Insert());  // no selection inserts at row 0
  EXPECT_EQ(Values(), (std::vector<int>{50, 1, 2}));
  MultiSelect({1}, 1);
  EXPECT_TRUE(list.Append());
  EXPECT_EQ(Values(), (std::vector<int>{50, 1, 2, 50}));
  EXPECT_EQ(list.m_nSel, 3);
  EXPECT_EQ(list.m_vecSelFlag, (std::vector<int32_t>{0, 0, 0, 1}));
  EXPECT_EQ(work.value, 50);
}

TEST_F(ListEdit, ClearResetsFlaggedRowsButNotTheTail) {
  list.m_bTailRow = true;
  Fill({1, 2, 3});
  MultiSelect({0, 2, 3}, 0);
  EXPECT_TRUE(list.Clear());
  EXPECT_EQ(Values(), (std::vector<int>{7, 2, 7}));
  EXPECT_EQ(work.value, 7);
}

TEST_F(ListEdit, DeleteRespectsTheMinimumAndMovesTheSelectionUp) {
  list.m_nMin = 1;
  Fill({1, 2, 3});
  list.Select(2, true);
  EXPECT_TRUE(list.Delete(-1, false));
  EXPECT_EQ(list.m_nSel, 1);
  EXPECT_EQ(work.value, 2);
  EXPECT_TRUE(list.Delete(-1, false));
  EXPECT_FALSE(list.Delete(-1, false));
  EXPECT_EQ(Values(), (std::vector<int>{1}));
  EXPECT_EQ(control.beeps, 1);

  list.m_nMin = 0;
  list.Select(0, true);
  EXPECT_TRUE(list.Delete(-1, false));
  EXPECT_EQ(list.m_nSel, -1);
  EXPECT_EQ(work.value, 7);
}

TEST_F(ListEdit, MultiDeleteStopsAtMinimumAndKeepsSelectionOnItsElement) {
  list.m_nMin = 2;
  Fill({1, 2, 3, 4, 5});
  MultiSelect({0, 1, 3, 4}, 3);
  EXPECT_TRUE(list.Delete(-1, false));
  EXPECT_EQ(Values(), (std::vector<int>{3, 5}));  // the third removal reaches the minimum
  EXPECT_EQ(list.m_nSel, 1);
  EXPECT_EQ(work.value, 5);
  EXPECT_EQ(list.m_vecSelFlag, (std::vector<int32_t>{0, 1}));

  list.m_nMin = 0;
  MultiSelect({0, 1}, 0);
  EXPECT_TRUE(list.Delete(-1, true));  // only the selected row
  EXPECT_EQ(Values(), (std::vector<int>{5}));
}

TEST_F(ListEdit, SetCountChecksLimitsAndFallsBackToRowZero) {
  list.m_nHead = 1;
  list.m_nMin = 1;
  list.m_nMax = 4;
  Fill({0, 1, 2, 3, 4});
  list.Select(3, true);
  EXPECT_FALSE(list.SetCount(5));
  EXPECT_FALSE(list.SetCount(0));
  EXPECT_EQ(control.beeps, 2);
  EXPECT_TRUE(list.SetCount(2));
  EXPECT_EQ(Values(), (std::vector<int>{0, 1, 2}));
  EXPECT_EQ(list.m_nSel, 0);
  EXPECT_EQ(work.value, 1);
  EXPECT_TRUE(list.SetCount(4));
  EXPECT_EQ(Values(), (std::vector<int>{0, 1, 2, 7, 7}));
}

TEST_F(ListEdit, RedrawFallsBackOnSavedSelectionThenRowZero) {
  Fill({1, 2, 3});
  list.Select(2, true);
  list.OnRedraw();
  list.m_nSel = -1;
  list.OnRedraw();
  EXPECT_EQ(list.m_nSel, 2);
  data.resize(1);
  list.Fill();
  list.m_nSel = 5;
  list.OnRedraw();
  EXPECT_EQ(list.m_nSel, 0);
}

TEST_F(ListEdit, RightClickRowComesFromTopAndTwelvePixelRows) {
  Fill({1, 2, 3, 4});
  list.m_nTop = 1;
  EXPECT_TRUE(list.ClickRow(2 + 12 + 5));
  EXPECT_EQ(list.m_nSel, 2);
  EXPECT_EQ(work.value, 3);
  EXPECT_FALSE(list.ClickRow(2 + 12 * 3));
  MultiSelect({0, 1}, 0);
  list.m_nTop = 0;
  EXPECT_TRUE(list.ClickRow(2 + 12));  // already flagged: the others stay
  EXPECT_EQ(list.m_vecSelFlag, (std::vector<int32_t>{1, 1, 0, 0}));
  EXPECT_TRUE(list.ClickRow(2 + 24));
  EXPECT_EQ(list.m_vecSelFlag, (std::vector<int32_t>{0, 0, 1, 0}));
}

TEST(ListCommands, IdSetsDependOnListNumberAndFamily) {
  EXPECT_EQ(ListMenuIds(2, 0), (ListCommandIds{40103, 40104, 40105, 0, 0, 40113, 0}));
  EXPECT_EQ(ListMenuIds(4, 1), (ListCommandIds{40115, 40116, 40117, 0, 40119, 0, 40120}));
  EXPECT_EQ(ListAcceleratorIds(1, 0), (ListCommandIds{40009, 40001, 40007, 40002, 0, 40008, 0}));
  EXPECT_EQ(ListAcceleratorIds(3, 1), (ListCommandIds{40029, 40022, 40027, 0, 40036, 0, 40037}));
  EXPECT_EQ(CommandForId(ListAcceleratorIds(4, 1), 40102), eListCommand::Delete);
  EXPECT_EQ(CommandForId(ListAcceleratorIds(4, 1), 0), eListCommand::None);
}

// 0..count-1, entry i holding i, so that a result reads as the order.
std::vector<int> Counting(int count) {
  std::vector<int> v(static_cast<size_t>(count));
  for (int i = 0; i < count; ++i) v[static_cast<size_t>(i)] = i;
  return v;
}

std::vector<int> Moved(int count, int first, int last, int target, eMoveOp op, bool changes = true) {
  std::vector<int> v = Counting(count);
  EXPECT_EQ(changes, MoveEntries(v, {first, last, target, static_cast<int32_t>(op)}))
      << first << ".." << last << " to " << target;
  return v;
}

TEST(MoveEntries, AMovedRangeLandsBeforeItsTargetAsTheListWas) {
  // 5..8 to 20 in a list of 30 stand at 16..19.
  const std::vector<int> far = Moved(30, 5, 8, 20, eMoveOp::Move);
  EXPECT_EQ(std::vector<int>(far.begin() + 16, far.begin() + 20), (std::vector<int>{5, 6, 7, 8}));
  EXPECT_EQ(far[15], 19);
  EXPECT_EQ(far[5], 9);
  EXPECT_EQ(Moved(6, 4, 5, 1, eMoveOp::Move), (std::vector<int>{0, 4, 5, 1, 2, 3}));

  // Onto its own place nothing happens; a target inside the range counts
  // from the range's start.
  EXPECT_EQ(Moved(30, 5, 5, 6, eMoveOp::Move, false), Counting(30));
  EXPECT_EQ(Moved(30, 5, 8, 6, eMoveOp::Move, false), Counting(30));
  const std::vector<int> inside = Moved(30, 5, 8, 7, eMoveOp::Move);
  EXPECT_EQ(std::vector<int>(inside.begin() + 1, inside.begin() + 10), (std::vector<int>{1, 2, 5, 6, 7, 8, 3, 4, 9}));

  // Where the range would go in before entry 0, those entries are
  // appended: entry 0 never moves.
  EXPECT_EQ(Moved(7, 1, 4, 3, eMoveOp::Move), (std::vector<int>{0, 3, 4, 5, 6, 1, 2}));
}

TEST(MoveEntries, CopyInsertAppendsBehindTheEndAndEraseTakesTheRange) {
  EXPECT_EQ(Moved(6, 1, 2, 4, eMoveOp::CopyInsert), (std::vector<int>{0, 1, 2, 3, 1, 2, 4, 5}));
  EXPECT_EQ(Moved(4, 1, 2, 99, eMoveOp::CopyInsert), (std::vector<int>{0, 1, 2, 3, 1, 2}));
  EXPECT_EQ(Moved(6, 2, 4, 0, eMoveOp::Erase), (std::vector<int>{0, 1, 5}));
}

TEST(MoveEntries, RangesOutsideTheRealEntriesAndUnknownOperationsDoNothing) {
  EXPECT_EQ(Moved(6, 0, 2, 4, eMoveOp::Erase, false), Counting(6));
  EXPECT_EQ(Moved(6, 3, 6, 1, eMoveOp::Move, false), Counting(6));
  EXPECT_EQ(Moved(6, 3, 2, 1, eMoveOp::CopyInsert, false), Counting(6));
  EXPECT_EQ(Moved(6, 1, 2, 4, static_cast<eMoveOp>(3), false), Counting(6));
  EXPECT_EQ(SelectionAfterMove(4, 3), 2);
  EXPECT_EQ(SelectionAfterMove(1, 3), 1);
}

}  // namespace
}  // namespace velmora
