#pragma once
#include <string>

namespace velmora {

// Sound files are told apart by the text behind the last "." of the path,
// compared exactly: ".MID" is not ".mid", and ".Mid" is neither.

// False when the path has no ".".
bool SoundExtension(const std::string& path, std::string& extension);
// Puts `extension` in place of the text behind the last ".".
void RewriteSoundExtension(std::string& path, const char* extension);

}  // namespace velmora
