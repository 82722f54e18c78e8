#include <gtest/gtest.h>

#include "core/RecordListEdit.h"
#include "objects/Cond.h"
#include "objects/CondTables.h"
#include "support/BeepCounter.h"

namespace velmora::testing {
namespace {

cEdCond Cond(int kind, int value) {
  cEdCond cond;
  cond.m_nKind = static_cast<uint8_t>(kind);
  cond.m_nValue = value;
  return cond;
}

// What the dialog of a record did: the records it was opened on, and the
// answer it gives.
struct cDialogScript {
  std::vector<cEdCond> opened;
  std::vector<bool> openedNew;
  bool ok = true;
  bool Run(cEdCond& cond, bool isNew) {
    opened.push_back(cond);
    openedNew.push_back(isNew);
    cond.m_nValue = 500;  // what the author typed, kept only on OK
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
  cDialogScript dialog;
  std::vector<cEdCond> conds{Cond(kCondCommonVar, 1), Cond(kCondStageVar, 2), Cond(kCondCharaVar, 3)};
  cRecordListEdit<cEdCond> list;
};

// The dialogs themselves, the limit and the paste rule are tried through
// the list control (tests/ui); here what the control can't show.
TEST_F(RecordListEdit, ADefaultRecordOpensAsNewAndCancelRestoresNoSelection) {
  list.Select(-1, true);
  dialog.ok = false;
  EXPECT_FALSE(list.Insert());
  ASSERT_EQ(dialog.opened.size(), 1u);
  EXPECT_TRUE(dialog.openedNew[0]);
  EXPECT_EQ(dialog.opened[0], cEdCond()) << "a new condition is all zero";
  EXPECT_EQ(list.m_nSel, -1) << "with nothing selected before, nothing is after";
  EXPECT_EQ(Values(), (std::vector<int>{1, 2, 3}));
  EXPECT_FALSE(list.EditSelected());
  EXPECT_EQ(dialog.opened.size(), 1u) << "nothing selected: no dialog";

  list.m_Edit = nullptr;
  list.Select(2, true);
  EXPECT_TRUE(list.Insert()) << "a list without a dialog keeps the default record";
  EXPECT_EQ(Values(), (std::vector<int>{1, 2, 0, 3}));
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
