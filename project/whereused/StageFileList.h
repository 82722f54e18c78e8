#pragma once
#include <string>
#include <vector>

namespace velmora {

// The stage files of data\stg4\, one per stage name: the one with the
// highest version suffix. Stored paths, in the order of their names
// compared without case.
std::vector<std::string> NewestStageFiles();

// The newest file of the stage called `name`, without case, given with or
// without its version suffix ("Alpha", "alpha.stg4_950"); empty when there
// is none.
std::string NewestStageFile(const std::string& name);

}  // namespace velmora
