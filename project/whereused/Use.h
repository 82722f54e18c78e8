#pragma once
#include <cstdint>
#include <string>

#include "project/whereused/UseTarget.h"

namespace velmora {

// Where in its file a use stands.
enum class eUseArea : uint8_t { Palette, Cell, StageSettings, WorldMap, System, Background };

// One use of a searched thing. Numbers count from 1 as the editor's lists
// show them; 0 where the use lies outside such a part. Texts are CP932.
struct cUse {
  cUseTarget target;
  eUseArea area = eUseArea::Palette;
  ePaletteList list = ePaletteList::Block;  // of a palette entry or a cell
  int32_t entry = 0;                        // palette entry, world map event or background layer
  int32_t x = -1, y = -1;                   // a cell's position
  int32_t page = 0;                         // world map event page
  int32_t flow = 0;
  int32_t cmd = 0;
  int32_t cond = 0;
  std::string name;  // of the entry or event
  std::string what;  // the summary line of the command or condition, or the field's label
};

// The place of a use without its file, and the whole line with the file
// in front, as the search window and the inspector list them (CP932).
std::string UsePlaceText(const cUse& use);
std::string UseLineText(const std::string& file, const cUse& use);

}  // namespace velmora
