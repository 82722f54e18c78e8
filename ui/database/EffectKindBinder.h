#pragma once
#include <cstdint>
#include <vector>

#include "project/EffectKindRules.h"
#include "ui/controls/Descriptors.h"

namespace velmora {

class cDialog;

// The kind and five parameters of a character or screen effect on a page,
// bound to one catalogue: the kind's note and the slots' labels, empty
// slots closed, each edit limited to its slot, the defaults of a kind the
// author chooses, and for the character effects' colour change a swatch of
// the chosen colour.
class cEffectKindBinder {
 public:
  // `firstId` and the ids behind it belong to the binder.
  cEffectKindBinder(const cEffectCatalog& catalog, bool colourKinds, int firstId);

  std::vector<cFormRow> Rows(int32_t* kind, int32_t* params);
  int KindId() const { return m_nFirstId; }
  bool IsParamId(int id) const;

  // Once the controls are bound: the note and the labels take the room of
  // the longest the catalogue has, so that no kind's text is cut and the
  // edits stand in one column whatever their labels.
  void FitTexts(cDialog& dialog) const;
  // Before a stored record is shown: limits wide enough for any value.
  void WidenLimits(cDialog& dialog) const;
  // A record was shown: its kind's note, labels and limits, with no value
  // changed.
  void RecordShown(cDialog& dialog, int kind, const int32_t* params);
  // The author chose `kind`: the parameters take its defaults when it is
  // another kind than the one shown last, and the page shows them.
  void KindChosen(cDialog& dialog, int kind, int32_t (&params)[cEffectCatalog::kParamCount]);
  // A parameter changed: the swatch follows the colour.
  void ShowSwatch(cDialog& dialog, int kind, const int32_t* params) const;

 private:
  int NoteId() const { return m_nFirstId + 1; }
  int SwatchId() const { return m_nFirstId + 2; }
  int LabelId(int slot) const { return m_nFirstId + 3 + slot; }
  int ParamId(int slot) const { return m_nFirstId + 3 + cEffectCatalog::kParamCount + slot; }
  int SpinId(int slot) const { return m_nFirstId + 3 + 2 * cEffectCatalog::kParamCount + slot; }
  void ShowKind(cDialog& dialog, int kind, const int32_t* params) const;

  const cEffectCatalog& m_catalog;
  bool m_bColourKinds;
  int m_nFirstId;
  cEffectKindTracker m_tracker;
};

}  // namespace velmora
