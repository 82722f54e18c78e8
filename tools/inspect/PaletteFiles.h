#pragma once
#include "objects/Palette.h"

namespace velmora::inspect {

// A stage palette file (.plt4): the three lists straight behind the version
// word, with no record at the top. It shares the shape of the common
// palette in memory, so both files are read and shown alike.
class cStagePaletteFile : public cPalette {
 public:
  void Load(cDataFile& file) override { ReadPaletteLists(Lists(), file); }
  void Save(cDataFile& file) override { WritePaletteLists(Lists(), file); }
};

}  // namespace velmora::inspect
