#include "stage/VarRename.h"

#include "core/Log.h"
#include "core/SystemText.h"
#include "objects/GValInfo.h"
#include "stage/Stage.h"
#include "stage/StageEdit.h"

namespace velmora {
namespace {

std::vector<cStageVar>& Names(int scope) { return scope == kScopeStage ? EditStage().m_vecStageVar : g_vecCommonVar; }

}  // namespace

const std::vector<cStageVar>& ScopeVarNames(int scope) { return Names(scope); }

bool RenameVariable(OwnerWindow owner, int scope, int number, const cStringInput& input) {
  std::vector<cStageVar>& names = Names(scope);
  // Element 0 has no variable behind it.
  if (number < 1 || static_cast<size_t>(number) >= names.size()) return false;
  std::string name = names[static_cast<size_t>(number)].m_strName;
  if (!AskVarName(owner, name, input)) return false;
  names[static_cast<size_t>(number)].m_strName = name;
  if (scope == kScopeStage) {
    StageEdit().m_bStageChanged = 1;
  } else if (!SaveCommonVars()) {
    ErrorBox(SysText("%s の保存に失敗しました！"), PathOf(ePath::GValInfo).c_str());
  }
  return true;
}

}  // namespace velmora
