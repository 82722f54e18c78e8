#pragma once
#include <cstdint>
#include <vector>

#include "objects/Block.h"
#include "objects/Chara.h"
#include "objects/Item.h"
#include "objects/PaletteSources.h"

namespace velmora {

// Points an entry at a source entry with a set of inherit flags and copies
// the flagged groups. A source beyond its list turns inheritance off.
void SetInherit(cEdBlock& entry, int source, int number, const std::vector<uint8_t>& defaultFlags);
void SetInherit(cEdChara& entry, int source, int number, const std::vector<uint8_t>& defaultFlags);
void SetInherit(cEdItem& entry, int source, int number, const std::vector<uint8_t>& defaultFlags);

// The refresh orders after a palette entry changed. `stagePalette` is the
// edit stage's palette and `cells` its placed objects; only occupied cells
// (a graphic number other than 0) take part.
void RefreshFromCommon(const cPaletteLists& stagePalette, const cPaletteLists& cells);
void RefreshBlockFromStage(std::vector<cEdBlock>& cells);
void RefreshCharaFromStage(std::vector<cEdChara>& cells);
void RefreshItemFromStage(std::vector<cEdItem>& cells);

}  // namespace velmora
