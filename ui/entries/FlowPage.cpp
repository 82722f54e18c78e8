#include "ui/entries/FlowPage.h"

#include <algorithm>

#include "objects/CmdSummary.h"
#include "objects/CondSummary.h"
#include "objects/CondTables.h"
#include "objects/FlowRows.h"
#include "objects/FlowRules.h"
#include "objects/FlowTables.h"
#include "objects/MoveTables.h"
#include "ui/commands/EditCommand.h"
#include "ui/conditions/EditCondition.h"
#include "ui/entries/EntryRows.h"
#include "ui/list/RecordListControl.h"

namespace velmora {
namespace {

constexpr int kFlowsGroup = 36;  // 行動
constexpr int kFlowsBox = 1024;
constexpr int kKeyEaseMax = 15;

// Each list has a number of its own, so its menu and keys don't reach the
// others.
// The flows run down the whole page, beside the fields of the one selected.
constexpr int kFlowRowsShown = 34;
constexpr cRecordListIds kFlowIds{kIdFlowList, kIdFlowInsert, 0, kIdFlowDelete, 1, 0, kFlowRowsShown};
constexpr cRecordListIds kCondIds{kIdFlowCondList, kIdFlowCondInsert, kIdFlowCondEdit, kIdFlowCondDelete, 2};
constexpr cRecordListIds kKeyIds{kIdKeyList, kIdKeyInsert, kIdKeyEdit, kIdKeyDelete, 3};
constexpr cRecordListIds kCmdIds{kIdCmdList, kIdCmdInsert, kIdCmdEdit, kIdCmdDelete, 4};

std::vector<cFormRow> FlowListRows(cEntryWork<cEdChara>& w) {
  return {BoxedRows(kFlowsBox, &w.inherit[kFlowsGroup], {RecordListRows(kFlowIds)})};
}

// The fields of the selected flow, bound to the page's working flow.
std::vector<cFormRow> FlowFieldRows(cEdFlow& f) {
  return {
      {"ID", TableCombo(kIdFlowId, &f.m_nFlowId, FlowIdTable)},
      SameLine(CheckRow(kIdFlowTestOnly, &f.m_bTestOnly, "テストプレイ専用")),
      {"メモ", CharsLine(kIdFlowMemo, &f.m_strMemo, kMaxFlowMemoChars)},
      {"タイミング", TableCombo(kIdFlowTrigger, &f.m_nTrigger, TriggerTable)},
      {"グループ", TableCombo(kIdFlowGroup, &f.m_nFlowGroup, FlowGroupTable)},
      CheckRow(kIdFlowTargetRelated, &f.m_bTargetRelated, "タイミングに関わったキャラをターゲットXにする　 X ="),
      SameLine({nullptr, TableCombo(kIdFlowTargetNo, &f.m_nTargetNo, Target4Table)}),
      FormColumns({
          {FormGroup("基本条件", {
              {"判定タイプ", TableCombo(kIdFlowCondJudge, &f.m_nCondJudge, CondJudgeTable)},
              CheckRow(kIdFlowCondLatch, &f.m_bCondLatch, "一度成立すると、以後無条件で成立"),
              RecordListRows(kCondIds),
          })},
          {FormGroup("キー条件", {
              {"条件が複数時の入力のしやすさ",
               cEditValDesc{kIdFlowKeyEase, &f.m_nKeyEase, 0, kKeyEaseMax, kIdFlowKeyEaseSpin, 1}},
              CheckRow(kIdFlowKeyRepeat, &f.m_bKeyRepeat, "押しっ放しによる連続実行を許可\n※最後のキーが「1～∞」の時のみ有効"),
              RecordListRows(kKeyIds),
          })},
      }),
      FormGroup("コマンド", {
          NoteRow(kIdFlowTriggerNote, ""),
          RecordListRows(kCmdIds),
      }),
  };
}

bool GroupOk(const cEdFlow& f) { return GroupAllowed(f.m_nTrigger); }
bool TargetOk(const cEdFlow& f) { return TargetRelatedAllowed(f.m_nTrigger); }
bool TargetChosen(const cEdFlow& f) { return f.m_bTargetRelated != 0; }

void FollowTriggerChange(cEdFlow& flow, const cEdFlow& before) {
  if (flow.m_nTrigger != before.m_nTrigger) FollowTrigger(flow);
}

const cRuleForm<cEdFlow> kFlowRules{
    .enables = {{kIdFlowGroup, GroupOk}, {kIdFlowTargetRelated, TargetOk, true}, {kIdFlowTargetNo, TargetChosen}},
    .follow = FollowTriggerChange,
};

// The controls of the selected flow: they take part only while a flow is
// selected and the flows are the character's own.
const std::vector<int> kFlowFieldIds = {
    kIdFlowId,         kIdFlowTestOnly,   kIdFlowMemo,       kIdFlowTrigger,   kIdFlowGroup,
    kIdFlowTargetRelated, kIdFlowTargetNo, kIdFlowCondJudge, kIdFlowCondLatch, kIdFlowKeyEase,
    kIdFlowKeyRepeat,
};
const std::vector<int> kFlowListIds = {
    kIdFlowCondList, kIdFlowCondInsert, kIdFlowCondEdit, kIdFlowCondDelete, kIdKeyList, kIdKeyInsert,
    kIdKeyEdit,      kIdKeyDelete,      kIdCmdList,      kIdCmdInsert,      kIdCmdEdit, kIdCmdDelete,
};

bool IsFlowField(int id) { return std::find(kFlowFieldIds.begin(), kFlowFieldIds.end(), id) != kFlowFieldIds.end(); }

// The whole page is one group, 行動.
cEntryPageForm<cEdChara> FlowPageForm() {
  std::vector<int> ids = Joined({kIdFlowList, kIdFlowInsert, kIdFlowDelete}, kFlowFieldIds);
  return {{.rows = FlowListRows}, {{kFlowsGroup, kFlowsBox, Joined(std::move(ids), kFlowListIds)}}};
}

const cEntryPageForm<cEdChara> kFlowPage = FlowPageForm();

class cFlowPage : public cEntryPage<cEdChara> {
 public:
  cFlowPage(cDialogManager& manager, cEntryWork<cEdChara>& work, cEntryEditorHost& host)
      : cEntryPage(manager, work, kFlowPage, host), m_flowRules(*this, kFlowRules) {
    // The flows on the left, the selected one's fields on the right.
    std::vector<cFormRow> flows = std::move(m_form.rows);
    m_form.rows = {flows.front(), FormColumns({{flows.begin() + 1, flows.end()}, FlowFieldRows(m_flow)})};
    SetUpLists();
  }

  void Reload() override {
    if (!IsOpen()) return;
    m_flows.SetData(&Work().entry.m_vFlow);
    cEntryPage::Reload();
    ShowFlow();
  }

  // The flow, and in it the command or else the condition. A condition
  // inside a command (フローの操作) selects the command that holds it.
  bool ShowStart(const cEditorStart& start) override {
    if (start.flow == 0 || !ShowListRow(*this, kIdFlowList, m_flows, start.flow - 1)) return false;
    ShowFlow();
    if (start.command != 0) ShowListRow(*this, kIdCmdList, m_cmds, start.command - 1);
    else if (start.condition != 0) ShowListRow(*this, kIdFlowCondList, m_conds, start.condition - 1);
    return true;
  }

 protected:
  void BindOwnControls() override {
    cEntryPage::BindOwnControls();
    m_flowRules.Bind(m_flow);
    m_flows.SetData(&Work().entry.m_vFlow);
    PointListsAtFlow();
    if (auto* flows = BindRecordList(*this, kFlowIds, m_flows)) {
      flows->View().onRecordChanged = [this] { ShowFlow(); };
    }
    Bind(kCondIds, m_conds);
    Bind(kKeyIds, m_keys);
    Bind(kCmdIds, m_cmds);
  }

  void UpdateEnables() override {
    cEntryPage::UpdateEnables();
    SetItemText(kIdFlowTriggerNote, TriggerNote(m_flow.m_nTrigger));
    if (Work().inherit[kFlowsGroup]) return;
    if (m_flows.GetSel() >= 0) {
      m_flowRules.UpdateEnables(m_flow);
      return;
    }
    for (const std::vector<int>* ids : {&kFlowFieldIds, &kFlowListIds}) {
      for (int id : *ids) EnableControl(id, false);
    }
  }

  void OnDialogCommand(int id, int notice) override {
    if (IsFlowField(id) && m_flowRules.OnCommand(m_flow, id, notice)) {
      StoreFlow();
      return;
    }
    cEntryPage::OnDialogCommand(id, notice);
  }

  // The fields of the selected flow and its lists go into the flow before
  // the editor stores the character.
  bool OnApply() override {
    StoreFlow();
    return true;
  }

 private:
  void SetUpLists() {
    m_flows.m_nMax = kMaxFlows;
    m_flows.m_lpWork = &m_flow;
    m_flows.m_RowText = [](int, const cEdFlow& flow) { return FlowRowText(flow); };
    m_conds.m_nMax = kMaxFlowConds;
    m_conds.m_RowText = [](int, const cEdCond& cond) { return CondSummaryText(cond); };
    m_conds.m_Edit = [this](cEdCond& cond, bool isNew) { return EditCondition(cond, isNew, Manager(), Window()); };
    m_keys.m_nMax = kMaxFlowKeyConds;
    m_keys.m_RowText = [](int, const cEdKeyCond& key) { return KeyRowText(key); };
    m_keys.m_Edit = [this](cEdKeyCond& key, bool) { return EditKeyCondition(key, Manager(), Window()); };
    m_cmds.m_nMax = kMaxFlowCmds;
    m_cmds.m_RowText = [](int, const cEdCmd& cmd) { return CmdSummaryText(cmd); };
    m_cmds.m_Edit = [this](cEdCmd& cmd, bool isNew) {
      return EditFlowCommand(cmd, isNew, Manager(), Window(), PaletteOfPlace(Work().place));
    };
  }

  // A list of the selected flow: each change goes into the flow at once.
  template <class Element>
  void Bind(const cRecordListIds& ids, cRecordListEdit<Element>& edit) {
    if (auto* list = BindRecordList(*this, ids, edit)) list->onChanged = [this] { StoreFlow(); };
  }

  void PointListsAtFlow() {
    m_conds.SetData(&m_flow.m_vCond);
    m_keys.SetData(&m_flow.m_vKeyCond);
    m_cmds.SetData(&m_flow.m_vCmd);
  }

  // Another flow was selected: its fields and its lists show.
  void ShowFlow() {
    PointListsAtFlow();
    RefreshOthers(kIdFlowList);
    m_flowRules.Follow(m_flow);
    UpdateEnables();
  }

  // The selected flow takes the working flow, so its row shows the new
  // number of commands.
  void StoreFlow() {
    m_flows.Store();
    if (auto* flows = FindControlOf<cRecordListControl<cEdFlow>>(kIdFlowList)) flows->View().Show();
  }

  cEdFlow m_flow;
  cFormRules<cEdFlow> m_flowRules;
  cRecordListEdit<cEdFlow> m_flows;
  cRecordListEdit<cEdCond> m_conds;
  cRecordListEdit<cEdKeyCond> m_keys;
  cRecordListEdit<cEdCmd> m_cmds;
};

}  // namespace

std::unique_ptr<cDialog> MakeFlowPage(cDialogManager& manager, cEntryWork<cEdChara>& work, cEntryEditorHost& host) {
  return std::make_unique<cFlowPage>(manager, work, host);
}

}  // namespace velmora
