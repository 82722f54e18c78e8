#include "project/ProjectRefSizes.h"

#include <string>

#include "core/ProjectPaths.h"
#include "objects/Palette.h"
#include "platform/FileSystem.h"
#include "project/Database.h"

namespace velmora {

int cProjectRefSizes::DbListSize(eDbList list) const { return Database().Count(list); }

bool InstallProjectRefSizes() {
  static const cProjectRefSizes sizes;
  std::string failedFile;
  if (!Database().Load(failedFile)) return false;
  if (FileExists(PathOf(ePath::CommonPalette))) {
    // The palette's own checks run against the database while it loads.
    InstallRefSizes(&sizes);
    if (!CommonPalette().LoadFile(PathOf(ePath::CommonPalette))) {
      InstallRefSizes(nullptr);
      return false;
    }
    InstallPaletteLists(ePalette::Common, CommonPalette().Lists());
  }
  InstallRefSizes(&sizes);
  return true;
}

}  // namespace velmora
