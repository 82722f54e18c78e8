#pragma once
#include <vector>

#include "core/SaveData.h"
#include "objects/Block.h"
#include "objects/Chara.h"
#include "objects/Item.h"
#include "objects/PaletteSources.h"

namespace velmora {

// The common palette: a record with no fields of its own and the three
// lists. Element 0 of each list is a blank entry that is never shown;
// entries are numbered from 1.
class cPalette : public cSaveData {
 public:
  std::vector<cEdBlock> m_vecBlockPlt;
  std::vector<cEdChara> m_vecCharaPlt;
  std::vector<cEdItem> m_vecItemPlt;

  void Load(cDataFile& file) override;
  void Save(cDataFile& file) override;
  void VisitNested(cNestedVisitor& visitor) const override;
  cPaletteLists Lists() { return {&m_vecBlockPlt, &m_vecCharaPlt, &m_vecItemPlt}; }
};

// Element 0 of each list is the blank entry, whatever a file held there.
void BlankFirstEntries(const cPaletteLists& lists);

// At least two elements per list, the second taken from the project's
// default entries; then every entry's reference checks.
void NormalizePalette(const cPaletteLists& lists);

// The three lists as they stand in a palette file, behind the version word
// of a stage palette file or the two zero counts of the common palette.
void ReadPaletteLists(const cPaletteLists& lists, cDataFile& file);
void WritePaletteLists(const cPaletteLists& lists, cDataFile& file);

// The common palette of the project, one for the process.
cPalette& CommonPalette();

}  // namespace velmora
