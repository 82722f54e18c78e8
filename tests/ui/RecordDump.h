#pragma once
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "inspect/Inspector.h"

namespace velmora::testing {

// A record file as the inspector shows it, one member a line.
inline std::vector<std::string> DumpRecordFile(const char* storedPath) {
  std::string out, err;
  EXPECT_EQ(0, inspect::RunInspector({"dump", storedPath}, out, err)) << err;
  std::vector<std::string> lines;
  for (size_t start = 0, end; start < out.size(); start = end + 1) {
    end = out.find('\n', start);
    if (end == std::string::npos) end = out.size();
    lines.push_back(out.substr(start, end - start));
  }
  return lines;
}

// The members whose lines differ between two dumps of one layout.
inline std::vector<std::string> ChangedMembers(const std::vector<std::string>& before,
                                               const std::vector<std::string>& after) {
  std::vector<std::string> members;
  EXPECT_EQ(before.size(), after.size());
  for (size_t i = 0; i < before.size() && i < after.size(); ++i) {
    if (before[i] == after[i]) continue;
    const size_t open = after[i].find('"');
    members.push_back(after[i].substr(open + 1, after[i].find('"', open + 1) - open - 1));
  }
  return members;
}

}  // namespace velmora::testing
