#pragma once
#include <string>
#include <vector>

namespace velmora::sample {

// Writes the default stage and two playable stages from the common palette
// and gives their paths, in order.
bool WriteSampleStages(std::vector<std::string>& paths);

}  // namespace velmora::sample
