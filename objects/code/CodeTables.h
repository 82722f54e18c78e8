#pragma once
#include <cstdint>
#include <span>
#include <string_view>

namespace velmora {

// The vocabularies of the code language. Each is scanned in its order and the
// first exact match wins, so the order is part of the language.
using cCodeWords = std::span<const char* const>;

cCodeWords CodeObjectTable();
cCodeWords CodeVarPrefixTable();
cCodeWords CodeCharaStatusTable();
cCodeWords CodeSystemStatusTable();

// Row of `word` in `table`, or -1.
int FindCodeWord(cCodeWords table, std::string_view word);

struct cCodeFunction {
  const char* name;
  int argumentCount;
  int32_t (*call)(std::span<const int32_t> arguments);
};
std::span<const cCodeFunction> CodeFunctionTable();
const cCodeFunction* FindCodeFunction(std::string_view name);  // null when none has that name

// An operator's row is its token's index. Priority 0 is reduced first.
struct cCodeOperator {
  const char* text;
  int priority;
  bool assigns;  // writes the right value into the left token's cell
  int32_t (*apply)(int32_t left, int32_t right);
};
constexpr int kCodeOperatorPasses = 3;
std::span<const cCodeOperator> CodeOperatorTable();
int FindCodeOperator(std::string_view word);  // row, or -1
const cCodeOperator* CodeOperatorAt(int index);  // null outside the table

}  // namespace velmora
