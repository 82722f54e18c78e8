#include <algorithm>
#include <cstring>
#include <string>

#include "objects/code/CodeErrors.h"
#include "objects/code/CodeTables.h"
#include "objects/code/CodeToken.h"

namespace velmora {
namespace {

// Every character a digit, where the first may be a sign. An overlong
// number saturates at the 32-bit limits, as the runtime's conversion does.
bool ReadNumber(std::string_view word, int32_t& value) {
  const bool negative = word[0] == '-';
  const size_t first = (negative || word[0] == '+') ? 1 : 0;
  if (first == word.size()) return false;
  const int64_t limit = negative ? 2147483648LL : 2147483647LL;
  int64_t magnitude = 0;
  for (size_t i = first; i < word.size(); ++i) {
    if (word[i] < '0' || word[i] > '9') return false;
    magnitude = std::min(limit, magnitude * 10 + (word[i] - '0'));
  }
  value = static_cast<int32_t>(negative ? -magnitude : magnitude);
  return true;
}

cCodeToken CellToken(eCodeToken kind, int32_t& cell, int32_t minValue, int32_t maxValue) {
  cCodeToken token;
  token.kind = kind;
  token.value = cell;
  token.target = &cell;
  token.minValue = minValue;
  token.maxValue = maxValue;
  return token;
}

// Tries the recognisers in the language's order; the first that fits makes
// the token.
bool MakeToken(std::string_view word, int32_t& cell, cCodeToken& token) {
  int row = FindCodeOperator(word);
  if (row >= 0) {
    token.kind = eCodeToken::Operator;
    token.index = row;
    return true;
  }
  if (CodeVariableScope(word) >= 0) {
    token = CellToken(eCodeToken::Variable, cell, kCodeNumberMin, kCodeNumberMax);
    return true;
  }
  const struct {
    cCodeWords table;
    eCodeToken kind;
  } statuses[] = {{CodeCharaStatusTable(), eCodeToken::CharaStatus},
                  {CodeSystemStatusTable(), eCodeToken::SystemStatus}};
  for (const auto& status : statuses) {
    row = FindCodeWord(status.table, word);
    if (row < 0) continue;
    token = CellToken(status.kind, cell, kCodeStatusMin, kCodeStatusMax);
    token.index = row;
    return true;
  }
  if (ReadNumber(word, token.value)) return true;
  RaiseCodeError(eCodeError::UnknownConstant, word);
  return false;
}

bool IsCodeSeparator(char c) { return c == ' ' || c == '(' || c == ')' || c == ','; }

// The variable a word names: its scope and the number behind the prefix.
// A variable word whose rest is no number names none the game can hold.
void FindVariable(std::string_view word, const cCodeVariableFound& found) {
  // "my.C3" is C3 with an object before it, as the tokens split it.
  const size_t dot = word.rfind('.');
  if (dot != std::string_view::npos) word.remove_prefix(dot + 1);
  const int scope = CodeVariableScope(word);
  const std::string_view digits = word.substr(std::min<size_t>(1, word.size()));
  if (scope < 0 || digits.empty() || digits.size() > 6) return;
  int number = 0;
  for (const char c : digits) {
    if (c < '0' || c > '9') return;
    number = number * 10 + (c - '0');
  }
  found(scope, number);
}

}  // namespace

int CodeVariableScope(std::string_view word) {
  // Only the first character decides, so "Cabc" is a variable.
  return word.empty() ? -1 : FindCodeWord(CodeVarPrefixTable(), word.substr(0, 1));
}

void ForEachCodeVariable(std::string_view text, const cCodeVariableFound& found) {
  size_t wordStart = 0;
  for (size_t pos = 0; pos <= text.size(); ++pos) {
    if (pos < text.size() && !IsCodeSeparator(text[pos])) continue;
    if (pos > wordStart) FindVariable(text.substr(wordStart, pos - wordStart), found);
    wordStart = pos + 1;
  }
}

bool SplitCodeTokens(std::string_view text, int32_t& cell, std::vector<cCodeToken>& tokens) {
  int32_t object = 0;
  size_t wordStart = 0;
  for (size_t pos = 0; pos <= text.size(); ++pos) {
    const std::string_view word = text.substr(wordStart, pos - wordStart);
    if (pos == text.size() || text[pos] == ' ') {
      wordStart = pos + 1;
      if (word.empty()) continue;
      cCodeToken token;
      if (!MakeToken(word, cell, token)) return false;
      // Whether the object suits the status is the game's business.
      token.object = object;
      object = 0;
      tokens.push_back(token);
    } else if (text[pos] == '.') {
      wordStart = pos + 1;
      object = FindCodeWord(CodeObjectTable(), word);
      if (object < 0) {
        RaiseCodeError(eCodeError::UnknownObject, word);
        return false;
      }
    }
  }
  return true;
}

void StoreInCell(const cCodeToken& token, int32_t value) {
  if (token.targetWidth == 1) {
    const int8_t narrow = static_cast<int8_t>(value);
    std::memcpy(token.target, &narrow, 1);
  } else if (token.targetWidth == 2) {
    const int16_t narrow = static_cast<int16_t>(value);
    std::memcpy(token.target, &narrow, 2);
  } else {
    std::memcpy(token.target, &value, 4);
  }
}

}  // namespace velmora
