#pragma once
#include <string>
#include <vector>

namespace velmora::inspect {

// The inspector's commands, apart from the process, so tests run them.
// Each gives the process exit code and writes to the two streams given.
int RunInspector(const std::vector<std::string>& args, std::string& out, std::string& err);

// The error line after a file failed to load: too new, or unreadable.
std::string ReadFailureText(const std::string& path);

}  // namespace velmora::inspect
