#include "stage/StageSettings.h"

#include <algorithm>

#include "core/SystemText.h"
#include "objects/LabelTable.h"
#include "stage/Stage.h"

namespace velmora {

int HiddenWidth(eScrollEdge edge, int limit, int width, int height) {
  switch (edge) {
    case kEdgeLeft: return std::min(limit, width - kStageViewWidth);
    case kEdgeRight: return width - std::min(limit, width - 1) - 1;
    case kEdgeTop: return std::min(limit, height - kStageViewHeight);
    case kEdgeBottom: return height - std::min(limit, height - 1) - 1;
    case kEdgeCount: break;
  }
  return 0;
}

std::string BackRowText(const cStageBack& back) {
  std::string text = SysText(back.m_bFromStart ? "○" : "‐");
  if (back.m_bUseColor) AppendFormat(text, SysText(" 色番号%d"), back.m_iColor);
  else AppendFormat(text, " %s", back.m_strPath.c_str());
  return text;
}

}  // namespace velmora
