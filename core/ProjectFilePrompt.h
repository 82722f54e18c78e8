#pragma once
#include <string>

#include "core/Prompt.h"

namespace velmora {

// What the file prompt of a path field asks. Texts are UTF-8, the system's
// own words; the folder is a stored path.
struct cProjectFileAsk {
  const char* title;
  const char* folder;
  const char* label;    // names the files, as "StageFile ( *.stg4_* )"
  const char* pattern;  // finds them
  const char* defaultExt;
};

// Asks through Prompt() for a file that a record names by its path
// relative to the project folder. False when the author cancels or picks a
// file outside the project, which such a path can't name; `path` then
// stays as it was.
bool AskProjectFile(OwnerWindow owner, const cProjectFileAsk& ask, std::string& path);

}  // namespace velmora
