#pragma once
#include <vector>

#include "objects/RefSizes.h"

namespace velmora {

class cEdBlock;
class cEdChara;
class cEdItem;

// The three lists of one palette as its owner holds them (the common
// palette record, or the stage for its own palette); the stage's cells come
// in the same shape.
struct cPaletteLists {
  std::vector<cEdBlock>* blocks = nullptr;
  std::vector<cEdChara>* charas = nullptr;
  std::vector<cEdItem>* items = nullptr;
};

// The palettes that entries inherit from and refer to. Their owners install
// them; an absent palette has nothing to copy from.
void InstallPaletteLists(ePalette which, const cPaletteLists& lists);
const cPaletteLists& InstalledPaletteLists(ePalette which);

// The list of an entry's kind in the palette an inherit source names (1
// common, 2 stage); null when the source is 0 or the palette is absent.
const std::vector<cEdBlock>* SourceList(const cEdBlock&, int source);
const std::vector<cEdChara>* SourceList(const cEdChara&, int source);
const std::vector<cEdItem>* SourceList(const cEdItem&, int source);

// The size of a list in the palette an inherit or reference source names,
// as the reference checks see it.
int PaletteSize(int source, ePaletteList list);

// Reference sizes that read the palettes from the installed lists; the
// project installs one (with its database sizes) once both are loaded.
class cPaletteRefSizes : public cRefSizes {
 public:
  int PaletteListSize(ePalette palette, ePaletteList list) const override;
};

}  // namespace velmora
