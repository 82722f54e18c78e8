#pragma once
#include <cstdint>
#include <string_view>

namespace velmora {

// The code of the command "コードの実行" is kept as text; this evaluator, run
// over dummy values, is what decides whether the text is acceptable. Texts
// are CP932. Any text is safe here, however long or damaged.

// Clears the error state, evaluates, and tells whether no error was raised.
bool ValidateCode(std::string_view text);

// First stage: substitutes every parenthesis and function call by its value,
// innermost first, then hands the flat text to EvalFlatCode.
int32_t EvalCode(std::string_view text);

// Second stage: text free of parentheses, words split at blanks. Gives the
// value of the last token read or the last operation made.
int32_t EvalFlatCode(std::string_view text);

}  // namespace velmora
