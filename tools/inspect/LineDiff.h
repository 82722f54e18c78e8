#pragma once
#include <string>
#include <vector>

namespace velmora::inspect {

// The lines that turn `before` into `after`: "- " before a line that went,
// "+ " before one that came, the lines both keep left out. A longest common
// subsequence decides which lines are kept.
std::vector<std::string> LineDiff(const std::vector<std::string>& before, const std::vector<std::string>& after);

}  // namespace velmora::inspect
