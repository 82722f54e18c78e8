#pragma once
#include <optional>

// The database lists that records refer to by row: eDbList.
#include "project/Database.h"

namespace velmora {

enum class ePalette { Common, Stage };
enum class ePaletteList { Block, Chara, Item };

// What the reference checks need to know of the project: the sizes of the
// lists that records point into. The database and the palettes install
// their own; until then nothing counts as out of range, so a check never
// destroys references against lists that are not loaded.
class cRefSizes {
 public:
  virtual ~cRefSizes() = default;
  virtual int DbListSize(eDbList list) const;
  virtual int PaletteListSize(ePalette palette, ePaletteList list) const;
  // The running time of a sword type, (1/10s); none when unknown.
  virtual std::optional<int> SwordTypeTime(int row) const;
};

const cRefSizes& RefSizes();
// Null brings back the default. The caller keeps the object alive.
void InstallRefSizes(const cRefSizes* sizes);

}  // namespace velmora
