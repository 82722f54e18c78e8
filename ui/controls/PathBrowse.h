#pragma once
#include "core/Prompt.h"

namespace velmora {

class cDialog;

// The "参照" beside a path edit: asks for a file and puts its stored path
// into the edit `editId` as if the author had typed it, so the field takes
// it with the dialog's other values. False when the author cancels or picks
// a file outside the project, which a relative path can't name. `prefix`
// goes in front of the path, for fields that keep it behind a ".\\".
bool BrowseIntoEdit(cDialog& dialog, int editId, const cFilePrompt& request, const char* prefix = "");

// A prompt for one kind of file: `filterText` and `pattern` make its one
// filter row. Texts are UTF-8; `folder` is the stored folder to start in.
cFilePrompt FilePromptOf(const char* title, const char* folder, const char* filterText, const char* pattern,
                         const char* defaultExt = "");

}  // namespace velmora
