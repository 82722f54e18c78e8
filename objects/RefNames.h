#pragma once
#include <string>
#include <vector>

#include "objects/RefSizes.h"

namespace velmora {

// What the list lines of commands show of the rows they point at: names of
// database rows and palette entries, and the running times that a line
// reckons its head from. The database installs its own; until then a
// database row has no name and no time. Palette entries are named from the
// installed palette lists. Every text is CP932.
class cRefNames {
 public:
  virtual ~cRefNames() = default;
  // "" for a row that does not exist.
  virtual std::string DbRowName(eDbList list, int row) const;
  // The display times (1/10s) of the frames of an animation (Anime) or an
  // effect (Effect), in order; empty when unknown.
  virtual std::vector<int> FrameTimes(eDbList list, int row) const;
  // The running time (1/10s) of a character or screen effect; 0 when
  // unknown.
  virtual int EffectTime(eDbList list, int row) const;
  // The name of entry `number` of a palette list; "" beyond the list.
  virtual std::string EntryName(ePalette palette, ePaletteList list, int number) const;
};

const cRefNames& RefNames();
// Null brings back the default. The caller keeps the object alive.
void InstallRefNames(const cRefNames* names);

}  // namespace velmora
