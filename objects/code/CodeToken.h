#pragma once
#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

namespace velmora {

enum class eCodeToken : int32_t { Number = 0, Variable = 1, CharaStatus = 2, SystemStatus = 3, Operator = 4 };

constexpr int32_t kCodeNumberMin = -999999;
constexpr int32_t kCodeNumberMax = 999999;
constexpr int32_t kCodeStatusMin = 0;
constexpr int32_t kCodeStatusMax = 2147483647;

// One word of flat code. Variables and statuses stand on a storage cell that
// "=" writes into, within the token's limits; numbers and operators have none.
struct cCodeToken {
  eCodeToken kind = eCodeToken::Number;
  int32_t value = 0;
  void* target = nullptr;
  int32_t targetWidth = 4;  // bytes: 1, 2 or 4
  int32_t minValue = kCodeNumberMin;
  int32_t maxValue = kCodeNumberMax;
  int32_t index = 0;   // row in the status table or in the operator table
  int32_t object = 0;  // row in the object table of the "xx." before the word
};

// Splits code free of parentheses into tokens at blanks. The editor gives
// every variable and status the one scratch `cell`, as their values are
// dummies. False after an error, which has been raised.
bool SplitCodeTokens(std::string_view text, int32_t& cell, std::vector<cCodeToken>& tokens);

// The scope a word names as a variable: the row of its first character in
// the prefix table (0 common, 1 stage), or -1 for a word of another kind.
int CodeVariableScope(std::string_view word);

// Every variable that a line of code names, with its scope and number, in
// the order they stand, inside parentheses and function arguments too.
// Raises no error: words the language refuses are passed over.
using cCodeVariableFound = std::function<void(int scope, int number)>;
void ForEachCodeVariable(std::string_view text, const cCodeVariableFound& found);

// Stores `value` into a token's cell in the cell's width.
void StoreInCell(const cCodeToken& token, int32_t value);

}  // namespace velmora
