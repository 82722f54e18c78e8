#include "ui/controls/ComboMap.h"

#include <algorithm>

#include "core/Log.h"
#include "core/SystemText.h"

namespace velmora {

int cComboMap::DataToPos(int value) const {
  if (!m_pConversion) return value - m_offset;
  const auto found = std::find(m_pConversion->begin(), m_pConversion->end(), value);
  return found == m_pConversion->end() ? -1 : static_cast<int>(found - m_pConversion->begin());
}

int cComboMap::PosToData(int position) const {
  if (!m_pConversion || position == -1) return m_offset + position;
  if (position < 0 || position >= static_cast<int>(m_pConversion->size())) {
    DebugBox("%s", SysText("コンボボックスのPosToDataに失敗！"));
    return m_fieldBytes == 1 ? 255 : -1;
  }
  return (*m_pConversion)[static_cast<size_t>(position)];
}

bool cComboMap::Adjust(int& value) const {
  if (m_pConversion) {
    DebugBox("%s", SysText("Adjust Err 変換テーブルポインタには未対応です"));
    return false;
  }
  value = std::clamp(value, m_offset, std::max(m_offset, m_offset + m_entries - 1));
  return true;
}

bool cComboMap::SetMin(int value) {
  if (m_pConversion) {
    DebugBox("%s", SysText("SetMin Err 変換テーブルポインタには未対応です"));
    return false;
  }
  m_offset = value;
  return true;
}

}  // namespace velmora
