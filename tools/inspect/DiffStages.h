#pragma once
#include <string>
#include <vector>

namespace velmora::inspect {

// `diff A B [OUT.png]`: the differences of two stage files, a line each,
// and with OUT.png stage B drawn with every changed cell framed. A file
// that can't be read whole is told and nothing is compared.
int DiffStages(const std::vector<std::string>& args, std::string& out, std::string& err);

}  // namespace velmora::inspect
