#include <QListWidget>
#include <gtest/gtest.h>

#include "platform/TextCodec.h"
#include "project/FileEntryRecords.h"
#include "ui/list/ListView.h"

namespace velmora {
namespace {

cEdSound Sound(const char* utf8Name) {
  cEdSound sound;
  sound.m_strName = ToCp932(utf8Name);
  return sound;
}

class ListView : public ::testing::Test {
 protected:
  void SetUp() override {
    sounds = {Sound("剣"), Sound("扉"), Sound("爆発")};
    edit.m_lpData = &sounds;
    edit.m_lpWork = &work;
    edit.m_bNumber = true;
    edit.m_RowText = [](int, const cEdSound& s) { return s.m_strName; };
    edit.m_SetDefaults = [](cEdSound& s) { s.Reset(); };
    view.onRecordChanged = [this] { ++refreshes; };
    view.Show();
  }
  QString Row(int row) const { return widget.item(row)->text(); }

  std::vector<cEdSound> sounds;
  cEdSound work;
  cListEdit<cEdSound> edit;
  QListWidget widget;
  cListView<cEdSound> view{edit, &widget, 2, 1};
  int refreshes = 0;
};

TEST_F(ListView, SelectingARowLoadsTheWorkingRecordAndFieldEditsReachTheRow) {
  ASSERT_EQ(widget.count(), 3);
  EXPECT_EQ(Row(2), QString::fromUtf8("3 爆発"));
  widget.setCurrentRow(1);
  EXPECT_EQ(ToUtf8(work.m_strName), "扉");
  EXPECT_GE(refreshes, 1);

  work.m_strName = ToCp932("門");
  view.StoreWork();
  EXPECT_EQ(Row(1), QString::fromUtf8("2 門"));
  EXPECT_EQ(widget.currentRow(), 1);
}

TEST_F(ListView, CommandIdsOfItsListNumberRunAndRefillTheRows) {
  widget.setCurrentRow(0);
  EXPECT_TRUE(view.RunCommand(40012));   // Ctrl+C of list 2
  EXPECT_TRUE(view.RunCommand(40105));   // paste from the menu
  ASSERT_EQ(widget.count(), 4);
  EXPECT_EQ(Row(1), QString::fromUtf8("2 剣"));
  EXPECT_TRUE(view.RunCommand(40107));   // delete
  EXPECT_EQ(widget.count(), 3);
  EXPECT_FALSE(view.RunCommand(40001));  // list 1's copy is another list's
  EXPECT_FALSE(view.RunCommand(40113));  // clear belongs to family 0
  for (int i = 0; i < 7; ++i) view.RunCommand(40034);  // Ctrl+I inserts
  EXPECT_EQ(widget.count(), 10);
  EXPECT_EQ(Row(0), QString::fromUtf8("01 "));
  EXPECT_EQ(widget.currentRow(), 0);
  EXPECT_TRUE(work.m_strName.empty());
}

}  // namespace
}  // namespace velmora
