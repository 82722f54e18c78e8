#pragma once
#include <string>

namespace velmora::sample {

// Writes a complete sample project into `folder` (made if missing): the
// project's folders and every file the editor reads, all made here from
// code. Gives false with a reason when something cannot be written.
bool MakeSampleProject(const std::string& folder, std::string& error);

}  // namespace velmora::sample
