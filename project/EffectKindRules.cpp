#include "project/EffectKindRules.h"

namespace velmora {

cEffectKindView EffectKindView(const cEffectCatalog& catalog, int kind, bool colourKinds) {
  cEffectKindView view;
  view.note = catalog.Note(kind);
  for (int slot = 0; slot < cEffectCatalog::kParamCount; ++slot) {
    const cEffectParamDef& def = catalog.Param(kind, slot);
    view.params[slot] = {def.m_strLabel, !def.m_strLabel.empty(), def.m_sMin, def.m_sMax};
  }
  view.colourSwatch = colourKinds && kind == kColourChangeKind;
  return view;
}

bool cEffectKindTracker::KindChosen(const cEffectCatalog& catalog, int kind,
                                    int32_t (&params)[cEffectCatalog::kParamCount]) {
  const bool changed = m_nLastKind != -1 && kind != m_nLastKind;
  m_nLastKind = kind;
  if (changed) catalog.FillDefaults(kind, params);
  return changed;
}

}  // namespace velmora
