#include "inspect/LineDiff.h"

#include <algorithm>

namespace velmora::inspect {

std::vector<std::string> LineDiff(const std::vector<std::string>& before, const std::vector<std::string>& after) {
  const size_t n = before.size(), m = after.size();
  // kept[i][j]: the most lines before[i..] and after[j..] have in common.
  std::vector<std::vector<int>> kept(n + 1, std::vector<int>(m + 1, 0));
  for (size_t i = n; i-- > 0;) {
    for (size_t j = m; j-- > 0;) {
      kept[i][j] = before[i] == after[j] ? kept[i + 1][j + 1] + 1 : std::max(kept[i + 1][j], kept[i][j + 1]);
    }
  }
  std::vector<std::string> lines;
  size_t i = 0, j = 0;
  while (i < n || j < m) {
    if (i < n && j < m && before[i] == after[j]) {
      ++i, ++j;
    } else if (j == m || (i < n && kept[i + 1][j] >= kept[i][j + 1])) {
      lines.push_back("- " + before[i++]);
    } else {
      lines.push_back("+ " + after[j++]);
    }
  }
  return lines;
}

}  // namespace velmora::inspect
