#pragma once
#include <string>

#include "core/Prompt.h"

namespace velmora {

// The file fields of the database pages: what their "参照" asks with, how
// a chosen file is stored and how "ファイル名と同じ" names an entry.
enum class eFileField { CharaBmp, Sword, Effect, Picture, Sound, Bgm };

// The open prompt of a field's "参照": its title, filter and start folder.
cFilePrompt FileFieldPrompt(eFileField field);

// The longest path a field holds, in bytes.
inline constexpr size_t kFilePathLimit = 260;

// A path from the open prompt as the field stores it: a file inside the
// project as ".\" and the path. False for a path that can't be made
// relative to the project folder or is too long for the field; the field
// then keeps what it held.
bool StoredFileChoice(const std::string& chosen, std::string& stored);

// The file name of a stored path without folder and extension, cut to
// `limit` bytes without splitting a character.
std::string NameFromPath(const std::string& path, size_t limit);

}  // namespace velmora
