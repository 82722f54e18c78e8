#include "ui/commands/CmdKindSelector.h"

#include <algorithm>

#include "objects/CmdTable.h"
#include "ui/commands/CmdForm.h"
#include "ui/commands/CmdIds.h"
#include "ui/commands/EditCommand.h"
#include "ui/framework/Commands.h"
#include "ui/framework/QtText.h"

namespace velmora {
namespace {

constexpr size_t kButtonsPerColumn = 13;

// The kinds' buttons, top to bottom and then column by column.
std::vector<cFormRow> KindButtons(bool itemCmd) {
  const std::span<const cCmdInfo> table = itemCmd ? ItemCmdTable : CmdTable;
  std::vector<int> kinds;
  for (int kind = 1; kind < static_cast<int>(table.size()); ++kind) {
    if (CmdKindForm(itemCmd, kind)) kinds.push_back(kind);
  }
  std::vector<std::vector<cFormRow>> columns;
  for (size_t first = 0; first < kinds.size(); first += kButtonsPerColumn) {
    const int count = static_cast<int>(std::min(kinds.size() - first, kButtonsPerColumn));
    columns.push_back(RepeatRows(count, [&](int i) {
      const int kind = kinds[first + static_cast<size_t>(i)];
      return std::vector<cFormRow>{{nullptr, cButtonDesc{KindButtonId(kind), table[static_cast<size_t>(kind)].label}}};
    }));
  }
  std::vector<cFormRow> rows = {FormColumns(std::move(columns))};
  rows.push_back(FormRows({{nullptr, cButtonDesc{kIdCancel, "キャンセル"}}}));
  return rows;
}

}  // namespace

cCmdKindSelector::cCmdKindSelector(cDialogManager& manager, QWidget* parent, cEdCmd& cmd, ePalette entryPalette)
    : cDialog(manager, parent), m_cmd(cmd), m_entryPalette(entryPalette) {
  SetTitle(Ui("コマンド"));
  SetLogName(cmd.m_bItemCmd ? "item command kind" : "command kind");
  m_form.rows = KindButtons(cmd.m_bItemCmd != 0);
  m_form.okCancel = false;
}

void cCmdKindSelector::OnDialogCommand(int id, int notice) {
  const bool itemCmd = m_cmd.m_bItemCmd != 0;
  const int kind = KindOfButton(id);
  if (notice != kNoticeClicked || !CmdKindForm(itemCmd, kind)) return;
  m_cmd.SetUpNew(kind, itemCmd);
  Close(EditCommand(m_cmd, Manager(), Window(), m_entryPalette) ? 1 : 0);
}

}  // namespace velmora
