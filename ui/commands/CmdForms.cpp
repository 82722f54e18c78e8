#include <array>

#include "objects/CmdTable.h"
#include "ui/commands/CmdForm.h"

namespace velmora {
namespace {

using cFormTable = std::array<const cCmdKindForm*, kCmdLoop + 1>;

const cFormTable& FormsByKind() {
  static const cFormTable table = [] {
    cFormTable forms{};
    for (auto family : {MoveForms(), ShotForms(), FlowForms(), StatusForms(), ShowForms()}) {
      for (const cCmdKindForm& form : family) forms[static_cast<size_t>(form.kind)] = &form;
    }
    forms[kCmdCode] = &CodeForm();
    return forms;
  }();
  return table;
}

}  // namespace

const cCmdKindForm* CmdKindForm(bool itemCmd, int kind) {
  if (!IsEditableCmdKind(itemCmd, kind)) return nullptr;
  if (itemCmd && kind == kItemCmdFlowChange) return &ItemFlowChangeForm();
  return FormsByKind()[static_cast<size_t>(CmdTableKind(itemCmd, kind))];
}

}  // namespace velmora
