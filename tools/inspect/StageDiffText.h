#pragma once
#include <string>
#include <vector>

#include "stage/Stage.h"

namespace velmora::inspect {

// The differences of two versions of a stage in the records' own terms, a
// line each in UTF-8: settings by field name, palette entries by list and
// number, cells by position and layer, and within an entry its fields by
// name and its flows by number, whose conditions and commands stand as
// their summary lines ("- " gone, "+ " come).
std::vector<std::string> StageDiffLines(cStage& before, cStage& after);

}  // namespace velmora::inspect
