#pragma once
#include <string>

namespace velmora::inspect {

// `where-used KIND N`: every use of the thing in the project of the
// current folder, one line each in UTF-8, then the files that could not be
// read. 2 for a kind or number it does not know.
int WhereUsed(const std::string& kind, const std::string& number, std::string& out, std::string& err);

}  // namespace velmora::inspect
