#pragma once
#include <memory>
#include <string>

#include "inspect/FileKinds.h"

namespace velmora::inspect {

// A stage palette file: the three lists straight behind the version word,
// with no record around them.
std::unique_ptr<cLoadedFile> LoadStagePaletteFile(const std::string& storedPath);

}  // namespace velmora::inspect
