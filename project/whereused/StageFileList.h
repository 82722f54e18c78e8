#pragma once
#include <string>
#include <vector>

namespace velmora {

// The stage files of data\stg4\, one per stage name: the one with the
// highest version suffix. Stored paths, in the order of their names
// compared without case.
std::vector<std::string> NewestStageFiles();

}  // namespace velmora
