#include "objects/code/CodeTables.h"

#include <algorithm>
#include <cstdlib>

namespace velmora {
namespace {

constexpr const char* kObjects[] = {"my", "tg", "tg1", "tg2", "tg3", "tg4", "pl", "sys"};
constexpr const char* kVarPrefixes[] = {"C", "S"};
constexpr const char* kCharaStatuses[] = {
    "v1",    "v2",    "v3",    "v4",    "v5",  "v6",   "v7",    "v8",     "hp",    "sp",
    "mhp",   "msp",   "cid",   "x_rel", "x_abs", "x_scr", "y_rel", "y_abs", "y_scr", "z",
    "mark",  "sight", "power", "imp",   "def", "impd", "stop",  "getsc"};
constexpr const char* kSystemStatuses[] = {"time", "scrlx", "scrly", "score", "life"};

// Values of the language wrap at 32 bits, as the game's arithmetic does.
int32_t Wrap(int64_t value) { return static_cast<int32_t>(static_cast<uint32_t>(value)); }
int32_t Add(int32_t left, int32_t right) { return Wrap(int64_t{left} + right); }
int32_t Subtract(int32_t left, int32_t right) { return Wrap(int64_t{left} - right); }
int32_t Multiply(int32_t left, int32_t right) { return Wrap(int64_t{left} * right); }
int32_t TakeRight(int32_t, int32_t right) { return right; }
// Every value in the editor is a dummy, so dividing would only risk a
// division by zero that the game may never meet.
int32_t NoDivision(int32_t, int32_t) { return 0; }

constexpr cCodeOperator kOperators[] = {
    {"=", 2, true, TakeRight},  {"+", 1, false, Add},       {"-", 1, false, Subtract},
    {"*", 0, false, Multiply},  {"/", 0, false, NoDivision}, {"%", 0, false, NoDivision},
};

// The span is computed in 64 bits: rand(-2147483648,2147483647) spans 2^32.
int32_t RandomBetween(std::span<const int32_t> arguments) {
  const int64_t smaller = std::min(arguments[0], arguments[1]);
  const int64_t larger = std::max(arguments[0], arguments[1]);
  return static_cast<int32_t>(smaller + std::rand() % (larger - smaller + 1));
}

constexpr cCodeFunction kFunctions[] = {{"rand", 2, RandomBetween}};

const char* TextOf(const char* word) { return word; }
const char* TextOf(const cCodeFunction& function) { return function.name; }
const char* TextOf(const cCodeOperator& op) { return op.text; }

template <class tRow>
int RowOf(std::span<const tRow> table, std::string_view word) {
  for (size_t row = 0; row < table.size(); ++row) {
    if (word == TextOf(table[row])) return static_cast<int>(row);
  }
  return -1;
}

}  // namespace

cCodeWords CodeObjectTable() { return kObjects; }
cCodeWords CodeVarPrefixTable() { return kVarPrefixes; }
cCodeWords CodeCharaStatusTable() { return kCharaStatuses; }
cCodeWords CodeSystemStatusTable() { return kSystemStatuses; }
std::span<const cCodeFunction> CodeFunctionTable() { return kFunctions; }
std::span<const cCodeOperator> CodeOperatorTable() { return kOperators; }

int FindCodeWord(cCodeWords table, std::string_view word) { return RowOf(table, word); }

const cCodeFunction* FindCodeFunction(std::string_view name) {
  const int row = RowOf(CodeFunctionTable(), name);
  return row < 0 ? nullptr : &kFunctions[row];
}

int FindCodeOperator(std::string_view word) { return RowOf(CodeOperatorTable(), word); }

const cCodeOperator* CodeOperatorAt(int index) {
  if (index < 0 || static_cast<size_t>(index) >= std::size(kOperators)) return nullptr;
  return &kOperators[index];
}

}  // namespace velmora
