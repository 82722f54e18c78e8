#include "inspect/ProjectNames.h"

#include "core/ProjectPaths.h"
#include "objects/GValInfo.h"
#include "objects/Palette.h"
#include "platform/FileSystem.h"

namespace velmora::inspect {

void LoadProjectNames(ePalette shown) {
  if (FileExists(PathOf(ePath::GValInfo))) LoadCommonVars();
  if (shown != ePalette::Common && FileExists(PathOf(ePath::CommonPalette)) &&
      CommonPalette().LoadFile(PathOf(ePath::CommonPalette))) {
    InstallPaletteLists(ePalette::Common, CommonPalette().Lists());
  }
}

}  // namespace velmora::inspect
