#pragma once
#include <vector>

#include "project/AnimeRecords.h"
#include "ui/controls/Descriptors.h"

namespace velmora {

class cDialog;

// The sample of an animation's preview on a page: its kind, the object's
// number with "一覧", and the starting cell, each limited by the kind.
class cSampleFields {
 public:
  // `firstId` and the five ids behind it belong to the fields.
  explicit cSampleFields(int firstId) : m_nFirstId(firstId) {}

  std::vector<cFormRow> Rows(cEdAnime& sample) const;
  bool IsSampleId(int id) const { return id >= KindId() && id <= CellId(); }
  int KindId() const { return m_nFirstId; }
  int ListId() const { return m_nFirstId + 5; }

  // The kind's limits and enabled states; `charaBmpCount` is the length
  // of the character bitmap list. The numbers are committed clamped, so
  // that the sample never names what its kind can't show.
  void ApplyLimits(cDialog& dialog, int kind, int charaBmpCount) const;
  // Shows the limits without committing, as a record is shown.
  void ShowLimits(cDialog& dialog, int kind, int charaBmpCount) const;
  // "一覧": true when the author picked an object for `sample`.
  bool Pick(cDialog& dialog, cEdAnime& sample) const;

 private:
  int NumberId() const { return m_nFirstId + 1; }
  int CellId() const { return m_nFirstId + 3; }
  int NumberSpinId() const { return m_nFirstId + 2; }
  int CellSpinId() const { return m_nFirstId + 4; }

  int m_nFirstId;
};

}  // namespace velmora
