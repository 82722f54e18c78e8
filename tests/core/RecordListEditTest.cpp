#include <gtest/gtest.h>

#include "core/RecordListEdit.h"
#include "objects/Cond.h"
#include "objects/CondTables.h"
#include "support/BeepCounter.h"
#include "support/ScriptedPrompt.h"

namespace velmora::testing {
namespace {

cEdCond Cond(int kind, int value) {
  cEdCond cond;
  cond.m_nKind = static_cast<uint8_t>(kind);
  cond.m_nValue = value;
  return cond;
}

// What the dialog of a record did: the records it was opened on, and the
// answer and change it gives.
struct cDialogScript {
  std::vector<cEdCond> opened;
  std::vector<bool> openedNew;
  bool ok = true;
  int setValue = 500;
  bool Run(cEdCond& cond, bool isNew) {
    opened.push_back(cond);
    openedNew.push_back(isNew);
    cond.m_nValue = setValue;  // what the author typed, kept only on OK
    return ok;
  }
};

class RecordListEdit : public ::testing::Test {
 protected:
  void SetUp() override {
    list.m_nMax = 99;
    list.m_Edit = [this](cEdCond& cond, bool isNew) { return dialog.Run(cond, isNew); };
    list.SetData(&conds);
  }
  std::vector<int> Values() const {
    std::vector<int> values;
    for (const cEdCond& cond : conds) values.push_back(cond.m_nValue);
    return values;
  }

  cBeepCounter control;
  cScriptedPrompt prompt;
  cDialogScript dialog;
  std::vector<cEdCond> conds{Cond(kCondCommonVar, 1), Cond(kCondStageVar, 2), Cond(kCondCharaVar, 3)};
  cRecordListEdit<cEdCond> list;
};

TEST_F(RecordListEdit, InsertOpensADefaultRecordThatCancelTakesOutAgain) {
  list.Select(1, true);
  dialog.ok = false;
  EXPECT_FALSE(list.Insert());
  ASSERT_EQ(dialog.opened.size(), 1u);
  EXPECT_TRUE(dialog.openedNew[0]);
  EXPECT_EQ(dialog.opened[0], cEdCond()) << "a new condition is all zero";
  EXPECT_EQ(Values(), (std::vector<int>{1, 2, 3}));
  EXPECT_EQ(list.m_nSel, 1);

  dialog.ok = true;
  EXPECT_TRUE(list.Insert());
  EXPECT_EQ(Values(), (std::vector<int>{1, 500, 2, 3}));
  EXPECT_EQ(list.m_nSel, 1) << "the new row stays selected";

  list.SetData(&conds);
  list.Select(-1, true);
  dialog.ok = false;
  list.Insert();
  EXPECT_EQ(list.m_nSel, -1) << "with nothing selected before, nothing is after";
  EXPECT_EQ(conds.size(), 4u);
}

TEST_F(RecordListEdit, WithoutADialogInsertKeepsTheDefaultRecord) {
  list.m_Edit = nullptr;
  list.Select(2, true);
  EXPECT_TRUE(list.Insert());
  EXPECT_EQ(Values(), (std::vector<int>{1, 2, 0, 3}));
  EXPECT_FALSE(list.EditSelected());
}

TEST_F(RecordListEdit, AFullListOpensNoDialog) {
  conds.assign(99, Cond(kCondCommonVar, 1));
  list.Select(0, true);
  EXPECT_FALSE(list.Insert());
  EXPECT_TRUE(dialog.opened.empty());
  EXPECT_EQ(control.beeps, 1);
  EXPECT_EQ(conds.size(), 99u);
}

TEST_F(RecordListEdit, EditOpensACopyThatOnlyOkStores) {
  list.Select(2, true);
  dialog.ok = false;
  EXPECT_FALSE(list.EditSelected());
  EXPECT_FALSE(dialog.openedNew[0]);
  EXPECT_EQ(Values(), (std::vector<int>{1, 2, 3}));
  dialog.ok = true;
  EXPECT_TRUE(list.EditSelected());
  EXPECT_EQ(Values(), (std::vector<int>{1, 2, 500}));

  list.Select(-1, true);
  EXPECT_FALSE(list.EditSelected());
  EXPECT_EQ(dialog.opened.size(), 2u) << "nothing selected: no dialog";
}

TEST_F(RecordListEdit, ARefusedPasteSaysWhyAndInsertsNothing) {
  conds.push_back(Cond(kCondDistance, 9));
  list.m_PasteRefusal = [](const std::vector<cEdCond>& clipboard) {
    for (const cEdCond& cond : clipboard) {
      if (cond.m_nKind == kCondDistance) return std::string("no distance");
    }
    return std::string();
  };
  list.Select(3, true);
  ASSERT_TRUE(list.Copy());
  list.Select(0, true);
  EXPECT_FALSE(list.Paste());
  EXPECT_EQ(prompt.LastText(), "no distance");
  EXPECT_EQ(Values(), (std::vector<int>{1, 2, 3, 9}));

  list.Select(1, true);
  ASSERT_TRUE(list.Copy());
  EXPECT_TRUE(list.Paste());
  EXPECT_EQ(Values(), (std::vector<int>{1, 2, 2, 3, 9}));
}

TEST_F(RecordListEdit, TheClipboardStaysWithTheListWhenItShowsAnotherVector) {
  list.Select(2, true);
  ASSERT_TRUE(list.Copy());
  std::vector<cEdCond> other{Cond(kCondStatus, 40)};
  list.SetData(&other);
  EXPECT_EQ(list.m_nSel, 0);
  EXPECT_TRUE(list.Paste());
  ASSERT_EQ(other.size(), 2u);
  EXPECT_EQ(other[0].m_nValue, 3);
  EXPECT_EQ(conds.size(), 3u);
}

}  // namespace
}  // namespace velmora::testing
