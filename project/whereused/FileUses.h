#pragma once
#include <string>
#include <vector>

#include "project/whereused/Use.h"

namespace velmora {

class cStage;
class cPalette;

// The uses that one project file holds, read through the loader of its
// record with the loader's checks. Each gives false, with nothing added,
// when the file can't be read whole (missing, damaged or too new).
bool CollectCommonPaletteUses(const std::string& storedPath, std::vector<cUse>& uses);
bool CollectStageUses(const std::string& storedPath, std::vector<cUse>& uses);
bool CollectWorldMapUses(const std::string& storedPath, std::vector<cUse>& uses);
bool CollectSystemUses(const std::string& storedPath, std::vector<cUse>& uses);

// The uses of `target` in a stage held in memory, such as the open one,
// whose palette entries the search window looks for before it is saved.
std::vector<cUse> FindInStage(cStage& stage, const cUseTarget& target);

}  // namespace velmora
