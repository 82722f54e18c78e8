#pragma once
#include "objects/PaletteSources.h"

namespace velmora {

// The sizes the reference checks see once a project is loaded: database
// lists from the project's database, palette lists from the installed
// palettes.
class cProjectRefSizes : public cPaletteRefSizes {
 public:
  int DbListSize(eDbList list) const override;
  // A sword runs as long as its positions show, one after the other.
  std::optional<int> SwordTypeTime(int row) const override;
};

// Makes the checks and the command lines read the project's database: its
// list sizes, names and running times.
void InstallDatabaseRefs();

// Reads what the checks need from the project in the current folder (the
// database and the common palette) and installs it. False, with nothing
// installed, when the folder holds no readable project data.
bool InstallProjectRefSizes();

}  // namespace velmora
