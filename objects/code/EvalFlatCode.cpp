#include <algorithm>
#include <vector>

#include "objects/code/CodeErrors.h"
#include "objects/code/CodeEval.h"
#include "objects/code/CodeTables.h"
#include "objects/code/CodeToken.h"

namespace velmora {
namespace {

// The three tokens around an operator become one number token at the left
// one's place.
bool ApplyOperator(const cCodeOperator& op, cCodeToken& left, const cCodeToken& right, int32_t& result) {
  int32_t value = op.apply(left.value, right.value);
  if (op.assigns) {
    if (!left.target) {
      RaiseCodeError(eCodeError::BadAssignTarget);
      return false;
    }
    value = std::clamp(value, left.minValue, left.maxValue);
    StoreInCell(left, value);
  }
  left = cCodeToken();
  left.value = value;
  result = value;
  return true;
}

// Reduces every operator of one priority, leftmost first. Each result lands
// left of the next candidate, so one sweep does what rescanning from the
// first token would.
bool ReducePass(std::vector<cCodeToken>& tokens, int priority, int32_t& result) {
  std::vector<cCodeToken> kept;
  kept.reserve(tokens.size());
  for (size_t i = 0; i < tokens.size(); ++i) {
    const cCodeToken& token = tokens[i];
    if (token.kind != eCodeToken::Operator) {
      kept.push_back(token);
      continue;
    }
    const cCodeOperator* op = CodeOperatorAt(token.index);
    if (!op) {
      RaiseCodeError(eCodeError::UndefinedOperator);
      return false;
    }
    if (op->priority != priority) {
      kept.push_back(token);
      continue;
    }
    if (kept.empty() || i + 1 == tokens.size()) {
      RaiseCodeError(eCodeError::MisplacedOperator, op->text);
      return false;
    }
    ++i;
    if (!ApplyOperator(*op, kept.back(), tokens[i], result)) return false;
  }
  tokens.swap(kept);
  return true;
}

}  // namespace

int32_t EvalFlatCode(std::string_view text) {
  int32_t scratchCell = 0;
  std::vector<cCodeToken> tokens;
  if (!SplitCodeTokens(text, scratchCell, tokens)) return 0;
  int32_t result = tokens.empty() ? 0 : tokens.back().value;
  for (int priority = 0; priority < kCodeOperatorPasses; ++priority) {
    if (!ReducePass(tokens, priority, result)) return 0;
  }
  return result;
}

}  // namespace velmora
