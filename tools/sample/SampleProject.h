#pragma once
#include <string>

namespace velmora::sample {

// Writes a complete sample project into `folder` (made if missing): the
// project's folders, pictures, sounds and every data file the editor reads,
// all made here from code, in data\ and again in default\. With `fresh`
// only default\ is left, for the first-start path. Gives false with a
// reason when something cannot be written.
bool MakeSampleProject(const std::string& folder, bool fresh, std::string& error);

}  // namespace velmora::sample
