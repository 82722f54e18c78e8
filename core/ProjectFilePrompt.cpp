#include "core/ProjectFilePrompt.h"

#include "core/SystemText.h"

namespace velmora {

bool AskProjectFile(OwnerWindow owner, const cProjectFileAsk& ask, std::string& path) {
  cFilePrompt request;
  request.title = SysText(ask.title);
  request.folder = ask.folder;
  request.filter = std::string(ask.label) + '\0' + ask.pattern + '\0';
  request.defaultExt = ask.defaultExt;
  std::string chosen;
  if (!Prompt().OpenFile(owner, request, chosen)) return false;
  const bool outside = chosen.empty() || chosen[0] == '\\' || chosen.find(':') != std::string::npos;
  if (outside) return false;
  path = chosen;
  return true;
}

}  // namespace velmora
