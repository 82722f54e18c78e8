#include "objects/FlowRows.h"

#include <algorithm>

#include "core/SystemText.h"
#include "objects/CondTables.h"
#include "objects/FlowTables.h"

namespace velmora {
namespace {

constexpr int kKeyPressed = 1;

// In the order of m_vKeyState.
constexpr const char* kKeyShortNames[kKeyCount] = {"方n", "←", "→", "↑", "↓", "←↑", "←↓", "→↑", "→↓", "方向",
                                                   "アn", "Z", "X", "C", "V", "A", "S", "D", "F"};
// By row of KeyJudgeTable: all keys, any key, exactly one key.
constexpr const char* kJoinSigns[] = {"+", "･", "/"};

const char* JoinSign(int judge) {
  return judge >= 0 && static_cast<size_t>(judge) < std::size(kJoinSigns) ? SysText(kJoinSigns[judge]) : "";
}

}  // namespace

std::string FlowRowText(const cEdFlow& flow) {
  std::string text;
  AppendFormat(text, SysText("×%d %s %s"), static_cast<int>(flow.m_vCmd.size()), FlowGroupTable.Label(flow.m_nFlowGroup),
               FlowIdTable.Label(flow.m_nFlowId));
  return text;
}

std::string KeyRowText(const cEdKeyCond& keyCond) {
  std::string text;
  if (keyCond.m_bPressAny) {
    text = SysText("1～∞ ： ");
  } else {
    AppendFormat(text, SysText("%d～%d ： "), keyCond.m_nPressMin, keyCond.m_nPressMax);
  }
  const size_t keys = std::min<size_t>(keyCond.m_vKeyState.size(), kKeyCount);
  bool any = false;
  for (size_t i = 0; i < keys; ++i) {
    if (keyCond.m_vKeyState[i] != kKeyPressed) continue;
    AppendFormat(text, "%s %s ", SysText(kKeyShortNames[i]), JoinSign(keyCond.m_nJudge));
    any = true;
  }
  // The last sign and its blank go; the blank before the sign stays.
  if (any) text.resize(text.size() - 2);
  return text;
}

}  // namespace velmora
