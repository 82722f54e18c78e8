#pragma once
#include <functional>
#include <string>

#include "core/Prompt.h"

namespace velmora {

constexpr int kVarNameLimit = 12;  // bytes

// The string input dialog: shows `text` for editing with at most `limit`
// bytes and the caption (CP932); false on Cancel.
using cStringInput = std::function<bool(OwnerWindow owner, std::string& text, int limit, const char* caption)>;

// Asks for a new name of one variable ("変数名の入力"). On OK `name` takes
// the answer, cut to the limit without splitting a two-byte character;
// on Cancel it is left alone.
bool AskVarName(OwnerWindow owner, std::string& name, const cStringInput& input);

}  // namespace velmora
