#pragma once
#include <string>
#include <vector>

namespace velmora {

// Whether a name ends in the extension "bmp", in any case of its letters,
// as a project made on Windows names its pictures.
bool HasBitmapExtension(const std::string& path);

// What a path dropped on the conversion tool adds to its list, as stored
// paths: a bitmap file itself, every bitmap directly inside a folder (as
// the folder, a backslash and the name, in name order), and nothing for
// anything else.
std::vector<std::string> BitmapsOfDropped(const std::string& stored);

}  // namespace velmora
