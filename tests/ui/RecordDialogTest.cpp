#include <QLineEdit>
#include <gtest/gtest.h>

#include "SampleDialog.h"
#include "objects/Cmd.h"
#include "objects/CmdTable.h"
#include "objects/FlowTables.h"
#include "support/TempProject.h"
#include "ui/controls/ComboRows.h"
#include "ui/framework/RecordDialog.h"

namespace velmora::testing {
namespace {

enum { kIdTime = 2101, kIdTurn, kIdHeight };

// A command dialog in the family's shape: the time, a combo over a label
// table that forces the field into its rows, and a vector element.
class cTurnDialog : public cRecordDialog<cEdCmd> {
 public:
  cTurnDialog(cDialogManager& manager, cEdCmd& cmd) : cRecordDialog(manager, nullptr, cmd) {
    PrepareWork(Work());
    m_form.rows = {
        {"実行時間", cEditValDesc{kIdTime, &Work().m_nTime, 1, 9999, 0, 1}},
        {"向き", ComboOf(kIdTurn, &Work().m_vParam[0], LabelRows(TurnTable))},
        {"高さ", cEditValDesc{kIdHeight, &Work().m_vParam[1], 1, 20, 0, 1}},
    };
  }
  bool refuse = false;
  std::vector<int> validatedTimes;

 protected:
  void PrepareWork(cEdCmd& work) override {
    work.m_vParam.resize(2);
    work.m_bParallel = 1;
  }
  bool Validate(const cEdCmd& work) override {
    validatedTimes.push_back(work.m_nTime);
    return !refuse;
  }
};

std::vector<uint8_t> SavedBytes(cEdCmd& cmd) {
  EXPECT_EQ(cmd.SaveFile("cmd.dat"), 1);
  return ReadBytes("cmd.dat");
}

class RecordDialog : public ::testing::Test {
 protected:
  void SetUp() override {
    // As a damaged file may leave it: a time below every limit, a row
    // beyond the table and too few parameters for the kind.
    cmd.m_nKind = kCmdTurn;
    cmd.m_nTime = -5;
    cmd.m_vParam = {77};
    cmd.m_strText = "memo";
    before = SavedBytes(cmd);
  }
  void Open(cTurnDialog& dialog) {
    ASSERT_TRUE(dialog.Create(0, true));
    Activate(dialog.Window());
  }
  void Type(cTurnDialog& dialog, int id, const QString& text) {
    auto* edit = qobject_cast<QLineEdit*>(dialog.Item(id));
    edit->setFocus();
    edit->selectAll();
    TypeText(edit, text);
  }
  void Press(cTurnDialog& dialog, int id) { dialog.SendCommand(MakeCommand(id, kNoticeClicked), 0); }

  cTempProject project;
  cDialogManager manager;
  cEdCmd cmd;
  std::vector<uint8_t> before;
};

TEST_F(RecordDialog, ARefusedOkThenCancelLeavesTheRecordByteForByte) {
  cTurnDialog dialog(manager, cmd);
  dialog.refuse = true;
  Open(dialog);
  EXPECT_EQ(qobject_cast<QLineEdit*>(dialog.Item(kIdTime))->text(), QStringLiteral("1")) << "shown clamped";
  Type(dialog, kIdTime, QStringLiteral("30"));
  Press(dialog, kIdOk);
  EXPECT_TRUE(dialog.IsOpen());
  EXPECT_EQ(dialog.validatedTimes, std::vector<int>{30}) << "validation sees the committed copy";
  EXPECT_EQ(SavedBytes(cmd), before);
  Press(dialog, kIdCancel);
  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(dialog.Result(), 0);
  EXPECT_EQ(SavedBytes(cmd), before);
}

TEST_F(RecordDialog, AnAcceptedOkGivesBackTheCopyWithWhatOpeningAndTheControlsDid) {
  cTurnDialog dialog(manager, cmd);
  Open(dialog);
  Type(dialog, kIdHeight, QStringLiteral("12"));
  Press(dialog, kIdOk);
  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(cmd.m_nTime, 1);
  ASSERT_EQ(cmd.m_vParam.size(), 2u);
  EXPECT_EQ(cmd.m_vParam[0], TurnTable.first + TurnTable.Size() - 1) << "forced into the table's rows";
  EXPECT_EQ(cmd.m_vParam[1], 12);
  EXPECT_EQ(cmd.m_bParallel, 1);
  EXPECT_EQ(cmd.m_strText, "memo");
}

TEST_F(RecordDialog, OpeningAgainStartsFromTheRecordAndStillReachesTheCopy) {
  cTurnDialog dialog(manager, cmd);
  Open(dialog);
  Type(dialog, kIdTime, QStringLiteral("44"));
  Press(dialog, kIdCancel);

  cmd.m_nTime = 7;
  Open(dialog);
  EXPECT_EQ(qobject_cast<QLineEdit*>(dialog.Item(kIdTime))->text(), QStringLiteral("7"));
  Type(dialog, kIdHeight, QStringLiteral("3"));
  Press(dialog, kIdOk);
  EXPECT_EQ(cmd.m_nTime, 7);
  ASSERT_EQ(cmd.m_vParam.size(), 2u);
  EXPECT_EQ(cmd.m_vParam[1], 3);
}

}  // namespace
}  // namespace velmora::testing
