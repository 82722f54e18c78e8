#pragma once
#include <cstdint>
#include <string>

#include "project/EffectCatalog.h"

namespace velmora {

// What an effect page shows for a kind: the kind's note, and for each of
// the five parameters its label, whether its edit is open, and its limits.
struct cEffectSlotView {
  std::string label;  // CP932; empty for an unused slot
  bool enabled = false;
  int minimum = 0;
  int maximum = 0;
};

struct cEffectKindView {
  std::string note;  // CP932
  cEffectSlotView params[cEffectCatalog::kParamCount];
  bool colourSwatch = false;  // the colour number of slot kColourSlot is shown as a swatch
};

// Character effect kind 13, "色変化", takes a colour number in its fourth
// parameter.
inline constexpr int kColourChangeKind = 13;
inline constexpr int kColourSlot = 3;

// `colourKinds` says whether the catalogue's kind 13 is the colour change.
cEffectKindView EffectKindView(const cEffectCatalog& catalog, int kind, bool colourKinds);

// Limits wide enough that any stored value reaches the edits as it is,
// before the limits of its kind apply.
inline constexpr int kWideParamMin = -9999;
inline constexpr int kWideParamMax = 9999;

// Remembers the kind a page showed last, so that only the author's choice
// of another kind fills in that kind's defaults: moving to another record,
// and the very first display, change no value.
class cEffectKindTracker {
 public:
  void RecordShown(int kind) { m_nLastKind = kind; }
  // The author chose `kind` in the combo box: true when the parameters took
  // the kind's defaults.
  bool KindChosen(const cEffectCatalog& catalog, int kind, int32_t (&params)[cEffectCatalog::kParamCount]);
  int LastKind() const { return m_nLastKind; }

 private:
  int m_nLastKind = -1;
};

}  // namespace velmora
