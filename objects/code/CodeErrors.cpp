#include "objects/code/CodeErrors.h"

#include <string>

#include "core/Log.h"
#include "core/SystemText.h"

namespace velmora {
namespace {

struct cCodeMessage {
  eCodeError error;
  const char* text;  // UTF-8, with at most one %s
  bool debugOnly;
};

// A %s is spliced rather than printed, so a word holding "%" shows as typed.
constexpr cCodeMessage kMessages[] = {
    {eCodeError::MissingParen, "\")\"が見つかりません！", false},
    {eCodeError::MissingFunctionParen, "関数 %s で\")\"が見つかりません！", false},
    {eCodeError::BadArguments, "関数 %s の引数が不正です！", false},
    {eCodeError::UnknownConstant, "定数 \"%s\" が認識できません！", false},
    {eCodeError::UnknownObject, "オブジェクト \"%s.\" が認識できません！", false},
    {eCodeError::MisplacedOperator, "演算子 \"%s\" の使い方が不正です！", false},
    {eCodeError::BadAssignTarget, "代入先が不正です！", false},
    {eCodeError::UndefinedOperator, "演算子のエラー（未定義？）", true},
    // Deeper nesting than any code of 100 characters can reach; it keeps a
    // damaged file's text from exhausting the stack.
    {eCodeError::NestedTooDeep, "括弧の入れ子が深すぎます！", false},
};

bool g_bCodeError = false;

const cCodeMessage& MessageOf(eCodeError error) {
  for (const cCodeMessage& message : kMessages) {
    if (message.error == error) return message;
  }
  return kMessages[0];
}

std::string MessageText(const cCodeMessage& message, std::string_view subject) {
  std::string text = SysText(message.text);
  const size_t slot = text.find("%s");
  if (slot != std::string::npos) text.replace(slot, 2, subject);
  return text;
}

}  // namespace

void RaiseCodeError(eCodeError error, std::string_view subject) {
  g_bCodeError = true;
  const cCodeMessage& message = MessageOf(error);
  const std::string text = MessageText(message, subject);
  if (!message.debugOnly) ErrorBoxText(text.c_str());
  else DebugBox("%s", text.c_str());
}

void ClearCodeError() { g_bCodeError = false; }

bool CodeErrorRaised() { return g_bCodeError; }

}  // namespace velmora
