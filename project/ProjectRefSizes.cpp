#include "project/ProjectRefSizes.h"

#include <algorithm>
#include <cstdint>
#include <string>

#include "core/ProjectPaths.h"
#include "objects/Palette.h"
#include "platform/FileSystem.h"
#include "project/Database.h"
#include "project/ProjectRefNames.h"

namespace velmora {

int cProjectRefSizes::DbListSize(eDbList list) const { return Database().Count(list); }

std::optional<int> cProjectRefSizes::SwordTypeTime(int row) const {
  const cDbList<cEdSwordType>& swords = Database().m_SwordType;
  if (row < 0 || row >= swords.Count()) return std::nullopt;
  long long total = 0;
  for (const cEdSwordPos& position : swords.m_vecEntries[static_cast<size_t>(row)].m_vecPositions) {
    total += position.m_iTime;
  }
  // A command keeps its time in 16 bits.
  return static_cast<int>(std::min<long long>(total, INT16_MAX));
}

void InstallDatabaseRefs() {
  static const cProjectRefSizes sizes;
  static const cProjectRefNames names;
  InstallRefSizes(&sizes);
  InstallRefNames(&names);
}

bool InstallProjectRefSizes() {
  std::string failedFile;
  if (!Database().Load(failedFile)) return false;
  if (FileExists(PathOf(ePath::CommonPalette))) {
    // The palette's own checks run against the database while it loads.
    InstallDatabaseRefs();
    if (!CommonPalette().LoadFile(PathOf(ePath::CommonPalette))) {
      InstallRefSizes(nullptr);
      InstallRefNames(nullptr);
      return false;
    }
    InstallPaletteLists(ePalette::Common, CommonPalette().Lists());
  }
  InstallDatabaseRefs();
  return true;
}

}  // namespace velmora
