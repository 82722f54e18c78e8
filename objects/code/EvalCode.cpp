#include <string>
#include <vector>

#include "objects/code/CodeErrors.h"
#include "objects/code/CodeEval.h"
#include "objects/code/CodeTables.h"

namespace velmora {
namespace {

// A code the editor lets the author type (100 characters) nests at most 50
// deep; text from a damaged file must not run the stack out.
constexpr int kMaxNesting = 100;
constexpr size_t kNoMatch = std::string::npos;

// Evaluates pieces of one text in place. Every piece handed inwards lies
// between a "(" and its ")", or between separators of one argument list, so
// the ")" matching each "(" is found once for the whole text, and the work
// stays in proportion to the text's length.
class cCodeExpander {
 public:
  explicit cCodeExpander(std::string_view text) : m_text(text), m_close(text.size(), kNoMatch) {
    std::vector<size_t> open;
    for (size_t pos = 0; pos < text.size(); ++pos) {
      if (text[pos] == '(') open.push_back(pos);
      if (text[pos] == ')' && !open.empty()) {
        m_close[open.back()] = pos;
        open.pop_back();
      }
    }
  }

  int32_t Expand(size_t begin, size_t end, int depth);

 private:
  bool CallFunction(const cCodeFunction& function, size_t open, size_t end, int depth, int32_t& value,
                    size_t& close);

  std::string_view m_text;
  std::vector<size_t> m_close;  // for each "(", the position of its ")"
};

// The text built so far holds what is already read, with each parenthesis
// or call replaced by its value in decimal; a call's name is the current
// word, from the last blank up to its "(".
int32_t cCodeExpander::Expand(size_t begin, size_t end, int depth) {
  if (depth > kMaxNesting) {
    RaiseCodeError(eCodeError::NestedTooDeep);
    return 0;
  }
  std::string built;
  size_t wordStart = 0;
  for (size_t pos = begin; pos < end; ++pos) {
    const char c = m_text[pos];
    if (c != '(') {
      built += c;
      if (c == ' ') wordStart = built.size();
      continue;
    }
    if (m_close[pos] == kNoMatch) {
      RaiseCodeError(eCodeError::MissingParen);
      return 0;
    }
    int32_t value = 0;
    size_t close = m_close[pos];
    if (wordStart == built.size()) {
      value = Expand(pos + 1, close, depth + 1);
    } else if (const cCodeFunction* function = FindCodeFunction(std::string_view(built).substr(wordStart))) {
      if (!CallFunction(*function, pos, end, depth, value, close)) return 0;
    } else {
      // An unknown name keeps its "(" and stays in the word, which the flat
      // stage then refuses.
      built += c;
      continue;
    }
    built.resize(wordStart);
    built += std::to_string(value);
    pos = close;
  }
  return EvalFlatCode(built);
}

// Arguments are split at "," and end at ")" outside inner parentheses; an
// empty one is no argument at all.
bool cCodeExpander::CallFunction(const cCodeFunction& function, size_t open, size_t end, int depth, int32_t& value,
                                 size_t& close) {
  std::vector<int32_t> arguments;
  size_t argumentStart = open + 1;
  int level = 0;
  for (size_t pos = open + 1; pos < end; ++pos) {
    const char c = m_text[pos];
    if (c == '(') ++level;
    else if (c == ')' && level > 0) --level;
    else if (level == 0 && (c == ',' || c == ')')) {
      if (pos > argumentStart) arguments.push_back(Expand(argumentStart, pos, depth + 1));
      argumentStart = pos + 1;
      if (c != ')') continue;
      if (static_cast<int>(arguments.size()) != function.argumentCount) {
        RaiseCodeError(eCodeError::BadArguments, function.name);
        return false;
      }
      value = function.call(arguments);
      close = pos;
      return true;
    }
  }
  RaiseCodeError(eCodeError::MissingFunctionParen, function.name);
  return false;
}

}  // namespace

int32_t EvalCode(std::string_view text) { return cCodeExpander(text).Expand(0, text.size(), 0); }

bool ValidateCode(std::string_view text) {
  ClearCodeError();
  EvalCode(text);
  return !CodeErrorRaised();
}

}  // namespace velmora
