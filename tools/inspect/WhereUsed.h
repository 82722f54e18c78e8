#pragma once
#include <string>
#include <vector>

namespace velmora::inspect {

// `where-used KIND N [--stage NAME]`: every use of the thing in the
// project of the current folder, one line each in UTF-8, then the files
// that could not be read. With --stage only the uses inside that stage's
// newest file; an entry of a stage's own palette needs it. 2 for a kind,
// number or stage it does not know.
int WhereUsed(const std::vector<std::string>& args, std::string& out, std::string& err);

}  // namespace velmora::inspect
