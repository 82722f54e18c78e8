#pragma once
#include <string_view>

namespace velmora {

// The code language has one error state for a whole validation. Every error
// shows its box and sets the flag; the stage that found it gives 0, and the
// outer stages carry on with that 0, so more boxes may follow.
enum class eCodeError {
  MissingParen,
  MissingFunctionParen,  // subject: the function's name
  BadArguments,          // subject: the function's name
  UnknownConstant,       // subject: the word
  UnknownObject,         // subject: the word before the dot
  MisplacedOperator,     // subject: the operator
  BadAssignTarget,
  UndefinedOperator,     // boxed only with the debug switch on
  NestedTooDeep,
};

// `subject` is CP932 and takes the place of the message's %s.
void RaiseCodeError(eCodeError error, std::string_view subject = {});
void ClearCodeError();
bool CodeErrorRaised();

}  // namespace velmora
