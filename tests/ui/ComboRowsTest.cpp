#include <QComboBox>
#include <gtest/gtest.h>

#include "SampleDialog.h"
#include "objects/CondTables.h"
#include "objects/StatusTables.h"
#include "ui/controls/Combo.h"
#include "ui/controls/ComboRows.h"

namespace velmora::testing {
namespace {

TEST(ComboRows, ALabelTableKeepsItsNumberingThroughTheOffset) {
  const cComboRows all = LabelRows(CharaVarTable);  // stored 1 to 8
  EXPECT_EQ(all.offset, 1);
  ASSERT_EQ(all.texts.size(), 8u);
  EXPECT_STREQ(all.texts.front().c_str(), CharaVarTable.Label(1));
  EXPECT_STREQ(all.texts.back().c_str(), CharaVarTable.Label(8));

  const cComboRows middle = LabelRows(CharaVarTable, 2, 3);
  EXPECT_EQ(middle.offset, 3);
  ASSERT_EQ(middle.texts.size(), 3u);
  EXPECT_STREQ(middle.texts.front().c_str(), CharaVarTable.Label(3));

  EXPECT_EQ(LabelRows(CharaVarTable, 6, 10).texts.size(), 2u) << "cut at the table's end";
  EXPECT_EQ(LabelRows(CharaVarTable, -4, 2).offset, 1) << "a range before the table starts at its first row";
  const cComboRows beyond = LabelRows(CharaVarTable, 40);
  EXPECT_TRUE(beyond.texts.empty());
  EXPECT_EQ(beyond.offset, 9);
}

TEST(ComboRows, RecordTablesAndFlagValuesGiveTheirLabels) {
  const cComboRows flags = LabelRows(CharaFlagTable, 1, 6);
  EXPECT_EQ(flags.offset, 1);
  ASSERT_EQ(flags.texts.size(), 6u);
  for (int row = 1; row <= 6; ++row) {
    EXPECT_STREQ(flags.texts[static_cast<size_t>(row - 1)].c_str(),
                 SysText(CharaFlagTable[static_cast<size_t>(row)].label));
  }
  const cFlagInfo& giant = CharaFlagTable[kFlagGiant];
  const cComboRows values = LabelRows(cLabelTable{giant.values, giant.min});
  EXPECT_EQ(values.offset, giant.min) << "a stored value of the smallest selects the first label";
  EXPECT_STREQ(values.texts.front().c_str(), giant.ValueLabel(giant.min));

  const cComboRows names = TextRows({"none", "a", "b"}, 1);
  EXPECT_EQ(names.offset, 1);
  EXPECT_EQ(names.texts, (std::vector<std::string>{"a", "b"}));
}

class ComboRefill : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(dialog.Create(0, true));
    combo = dialog.FindControlOf<cCombo>(kIdKind);
    box = qobject_cast<QComboBox*>(dialog.Item(kIdKind));
    ASSERT_TRUE(combo && box);
  }
  void Pick(int row) {
    box->setCurrentIndex(row);
    dialog.SendCommand(MakeCommand(kIdKind, kNoticeSelChange), 0);
  }

  cDialogManager manager;
  cSampleRecord record;  // nKind 2
  cSampleDialog dialog{manager, record};
  cCombo* combo = nullptr;
  QComboBox* box = nullptr;
};

TEST_F(ComboRefill, NewRowsThatHoldTheValueSelectItAndStayBound) {
  EXPECT_TRUE(combo->SetRows(TextRows({"w", "x", "y", "z"}, 0)));
  EXPECT_EQ(box->count(), 4);
  EXPECT_EQ(box->currentIndex(), 2);
  Pick(3);
  EXPECT_EQ(combo->SelectedValue(), 3);
  EXPECT_EQ(record.nKind, 2) << "a refill and a pick write nothing before OK";
  dialog.SendCommand(MakeCommand(kIdOk, kNoticeClicked), 0);
  EXPECT_EQ(record.nKind, 3);
}

TEST_F(ComboRefill, NewRowsWithoutTheValueSelectNothingAndLeaveTheFieldToTheDialog) {
  const cComboRows far{SysTexts({"p", "q"}), 10};
  EXPECT_FALSE(combo->SetRows(far));
  EXPECT_EQ(box->currentIndex(), -1);
  dialog.ApplyAll();
  EXPECT_EQ(record.nKind, 2) << "a list that shows no row stores nothing";
  combo->Adjust();
  combo->Refresh();
  EXPECT_EQ(record.nKind, 10) << "the dialog chose the nearest row";
  EXPECT_EQ(box->currentIndex(), 0);

  const std::vector<int> subset = {4, 10};
  EXPECT_TRUE(combo->SetRows({SysTexts({"four", "ten"}), 0, &subset}));
  EXPECT_EQ(box->currentIndex(), 1);
  Pick(0);
  dialog.ApplyAll();
  EXPECT_EQ(record.nKind, 4) << "the conversion table of the new rows stores";
}

}  // namespace
}  // namespace velmora::testing
