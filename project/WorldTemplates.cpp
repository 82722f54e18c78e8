#include "project/WorldTemplates.h"

namespace velmora {

cWorldTemplateList::cWorldTemplateList(cEdWorldMap& map, cEdWorldEditState& state) : m_state(state) {
  m_lpData = &map.m_vecTemplates;
  m_nMin = 1;
  m_nMax = cEdWorldMap::kMaxTemplates;
  m_RowText = [](int, const cEdWorldEvent& event) { return event.m_strName; };
}

bool cWorldTemplateList::Copy() {
  if (!cRecordListEdit::Copy()) return false;
  m_state.FillClip(m_vecBuffer.front());
  return true;
}

bool cWorldTemplateList::Paste() {
  if (m_state.m_bClip) m_vecBuffer.assign(1, m_state.m_Clip);
  return cRecordListEdit::Paste();
}

void cWorldTemplateList::ShareSelection() { m_state.SelectTemplate(*m_lpData, GetSel()); }

}  // namespace velmora
