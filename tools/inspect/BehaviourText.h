#pragma once
#include <string>

#include "objects/PaletteSources.h"

namespace velmora::inspect {

// Which entries to show: all, or one character or one item by number.
struct cEntryFilter {
  ePaletteList list = ePaletteList::Chara;
  int number = 0;  // 0 for every entry of both lists
};

// False when the text is neither "chara:N" nor "item:N" with N from 1.
bool ParseEntryFilter(const std::string& text, cEntryFilter& filter);

// One block per entry: its number and name, then its rows indented by
// level. A character shows each flow row with its trigger and its condition,
// key and command rows; an item its command rows. A command that carries
// its own conditions shows them under its line. UTF-8.
std::string BehaviourText(const cPaletteLists& lists, const cEntryFilter& filter);

}  // namespace velmora::inspect
