#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <gtest/gtest.h>

#include "SampleDialog.h"
#include "core/SystemText.h"
#include "objects/CondList.h"
#include "objects/CondSummary.h"
#include "objects/CondTables.h"
#include "platform/TextCodec.h"
#include "support/ScriptedPrompt.h"
#include "ui/framework/RecordDialog.h"
#include "ui/list/RecordListControl.h"

namespace velmora::testing {
namespace {

constexpr cRecordListIds kIds{3101, 3102, 3103, 3104, 2};
constexpr int kIdValue = 3110;
constexpr const char* kDistancePaste = "「距離条件」の貼り付けはできません！";

// The dialog of one condition, standing in for those of each kind.
class cValueDialog : public cRecordDialog<cEdCond> {
 public:
  cValueDialog(cDialogManager& manager, cEdCond& cond) : cRecordDialog(manager, nullptr, cond) {
    m_form.rows = {{"値", cEditValDesc{kIdValue, &Work().m_nValue, -999, 999, 0, 1}}};
  }
};

// A host in the shape of フローの操作: a record with a list of conditions.
class cHostDialog : public cRecordDialog<cCondList> {
 public:
  cHostDialog(cDialogManager& manager, cCondList& list) : cRecordDialog(manager, nullptr, list) {
    conds.m_nMax = 99;
    conds.m_RowText = [](int, const cEdCond& cond) { return CondSummaryText(cond); };
    conds.m_Edit = [&manager](cEdCond& cond, bool isNew) {
      if (isNew) cond.m_nKind = kCondCommonVar;
      cValueDialog dialog(manager, cond);
      return dialog.DoModal(cDialog::kDisableOthers) == 1;
    };
    conds.m_PasteRefusal = [](const std::vector<cEdCond>& clipboard) {
      for (const cEdCond& cond : clipboard) {
        if (cond.m_nKind == kCondDistance) return std::string(SysText(kDistancePaste));
      }
      return std::string();
    };
    m_form.rows = {RecordListRows(kIds)};
  }
  cRecordListEdit<cEdCond> conds;
  cRecordListControl<cEdCond>* control = nullptr;
  int changes = 0;

 protected:
  void PrepareWork(cCondList& work) override { conds.SetData(&work.m_vCond); }
  void BindOwnControls() override {
    control = BindRecordList(*this, kIds, conds);
    control->onChanged = [this] { ++changes; };
  }
};

cEdCond Cond(int kind, int value) {
  cEdCond cond;
  cond.m_nKind = static_cast<uint8_t>(kind);
  cond.m_nValue = value;
  return cond;
}

class RecordList : public ::testing::Test {
 protected:
  void SetUp() override {
    record.m_vCond = {Cond(kCondCommonVar, 1), Cond(kCondStageVar, 2)};
    ASSERT_TRUE(host.Create(0, true));
    Activate(host.Window());
    widget = qobject_cast<QListWidget*>(host.Item(kIds.list));
    ASSERT_NE(widget, nullptr);
  }
  void TearDown() override {
    if (host.IsOpen()) host.Close(0);
  }
  // Clicks a button of the host; the condition's dialog that it opens
  // gets `value` typed and is closed with OK or Cancel, as AnswerNext
  // answers the next dialog that opens.
  void ClickAnswering(int id, int value, int closeId) {
    AnswerNext(value, closeId);
    QTest::mouseClick(host.Item(id), Qt::LeftButton);
  }
  void AnswerNext(int value, int closeId) {
    WhenModal([value, closeId](QWidget* modal) {
      ASSERT_NE(modal, nullptr);
      auto* edit = modal->findChild<QLineEdit*>();
      edit->selectAll();
      TypeText(edit, QString::number(value));
      if (closeId == kIdOk) QTest::keyClick(edit, Qt::Key_Return);
      else static_cast<QDialog*>(modal)->reject();
    });
  }
  std::vector<int> Values() const {
    std::vector<int> values;
    for (const cEdCond& cond : *host.conds.m_lpData) values.push_back(cond.m_nValue);
    return values;
  }
  QString Row(int row) const { return widget->item(row)->text(); }

  cScriptedPrompt prompt;
  cDialogManager manager;
  cCondList record;
  cHostDialog host{manager, record};
  QListWidget* widget = nullptr;
};

TEST_F(RecordList, InsertEditAndDeleteGoThroughTheRecordsOwnDialog) {
  widget->setCurrentRow(1);
  ClickAnswering(kIds.insert, 77, kIdOk);
  EXPECT_EQ(Values(), (std::vector<int>{1, 77, 2}));
  EXPECT_EQ(widget->currentRow(), 1);
  EXPECT_EQ(Row(1), QString::fromStdString(ToUtf8(CondSummaryText(host.conds.m_lpData->at(1)))));

  ClickAnswering(kIds.insert, 55, kIdCancel);
  EXPECT_EQ(Values(), (std::vector<int>{1, 77, 2})) << "Cancel takes the new row out again";
  EXPECT_EQ(widget->count(), 3);

  widget->setCurrentRow(2);
  ClickAnswering(kIds.edit, 20, kIdCancel);
  EXPECT_EQ(Values(), (std::vector<int>{1, 77, 2}));
  ClickAnswering(kIds.edit, 20, kIdOk);
  EXPECT_EQ(Values(), (std::vector<int>{1, 77, 20}));
  widget->setCurrentRow(0);  // what the first click of a double click does
  AnswerNext(-3, kIdOk);
  emit widget->itemDoubleClicked(widget->item(0));
  EXPECT_EQ(Values(), (std::vector<int>{-3, 77, 20})) << "a double click edits too";
  widget->setCurrentRow(2);

  QTest::mouseClick(host.Item(kIds.remove), Qt::LeftButton);
  EXPECT_EQ(Values(), (std::vector<int>{-3, 77}));
  EXPECT_EQ(widget->count(), 2);
  EXPECT_EQ(host.changes, 4);
  EXPECT_EQ(record.m_vCond.size(), 2u) << "all of it in the host's copy";
}

TEST_F(RecordList, KeysKeepTheListsOwnClipboardItsPasteRuleAndItsLimit) {
  widget->setFocus();
  widget->setCurrentRow(0);
  host.control->OnKey(Qt::Key_C, true);
  host.control->OnKey(Qt::Key_V, true);
  EXPECT_EQ(Values(), (std::vector<int>{1, 1, 2}));

  host.conds.m_lpData->push_back(Cond(kCondDistance, 9));
  host.control->Refresh();
  widget->setCurrentRow(3);
  host.control->OnKey(Qt::Key_X, true);
  EXPECT_EQ(Values(), (std::vector<int>{1, 1, 2}));
  host.control->OnKey(Qt::Key_V, true);
  EXPECT_EQ(prompt.LastText(), kDistancePaste);
  EXPECT_EQ(Values(), (std::vector<int>{1, 1, 2}));

  host.conds.m_lpData->assign(99, Cond(kCondCommonVar, 5));
  host.control->Refresh();
  QTest::mouseClick(host.Item(kIds.insert), Qt::LeftButton);  // full: no dialog opens
  EXPECT_EQ(host.conds.m_lpData->size(), 99u);
}

TEST_F(RecordList, TheHostsCancelDropsEverythingTheListDid) {
  const cCondList before = record;
  widget->setCurrentRow(0);
  ClickAnswering(kIds.insert, 33, kIdOk);
  QTest::mouseClick(host.Item(kIds.remove), Qt::LeftButton);
  host.SendCommand(MakeCommand(kIdCancel, kNoticeClicked), 0);
  EXPECT_TRUE(record == before);

  ASSERT_TRUE(host.Create(0, true));
  EXPECT_EQ(qobject_cast<QListWidget*>(host.Item(kIds.list))->count(), 2) << "opened again on the record";
  widget = qobject_cast<QListWidget*>(host.Item(kIds.list));
  widget->setCurrentRow(1);
  ClickAnswering(kIds.insert, 44, kIdOk);
  host.SendCommand(MakeCommand(kIdOk, kNoticeClicked), 0);
  ASSERT_EQ(record.m_vCond.size(), 3u);
  EXPECT_EQ(record.m_vCond[1].m_nValue, 44);
}

}  // namespace
}  // namespace velmora::testing
