#pragma once
#include <string>

namespace velmora {

// A stored path in the form in which two paths that name the same file
// on Windows are equal: without case, with one kind of separator and
// without a leading ".\". Only single-byte letters fold, never the second
// byte of a double-byte character.
std::string PathKey(const std::string& storedPath);

}  // namespace velmora
