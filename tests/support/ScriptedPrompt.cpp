#include "support/ScriptedPrompt.h"

#include "platform/TextCodec.h"

namespace velmora::testing {

cScriptedPrompt::cScriptedPrompt() { SetPrompt(this); }

cScriptedPrompt::~cScriptedPrompt() { SetPrompt(nullptr); }

eAnswer cScriptedPrompt::Ask(OwnerWindow, const std::string& caption, const std::string& text, eButtons buttons,
                             eIcon) {
  m_shown.push_back({ToUtf8(caption), ToUtf8(text), buttons});
  if (!m_answers.empty()) {
    eAnswer answer = m_answers.front();
    m_answers.pop_front();
    return answer;
  }
  switch (buttons) {
    case eButtons::Ok: return eAnswer::Ok;
    case eButtons::YesNo: return eAnswer::No;
    default: return eAnswer::Cancel;
  }
}

bool cScriptedPrompt::NextPath(const std::string& title, std::string& path) {
  m_shown.push_back({ToUtf8(title), std::string(), eButtons::OkCancel});
  if (m_paths.empty()) return false;
  path = m_paths.front();
  m_paths.pop_front();
  return !path.empty();
}

bool cScriptedPrompt::OpenFile(OwnerWindow, const cFilePrompt& request, std::string& path) {
  return NextPath(request.title, path);
}

// Several paths travel as one queued answer, a line each.
void cScriptedPrompt::QueuePaths(const std::vector<std::string>& storedPaths) {
  std::string joined;
  for (const std::string& path : storedPaths) joined += path + '\n';
  m_paths.push_back(joined);
}

bool cScriptedPrompt::OpenFiles(OwnerWindow, const cFilePrompt& request, std::vector<std::string>& paths) {
  std::string joined;
  if (!NextPath(request.title, joined)) return false;
  for (size_t start = 0, end; (end = joined.find('\n', start)) != std::string::npos; start = end + 1) {
    paths.push_back(joined.substr(start, end - start));
  }
  return true;
}

bool cScriptedPrompt::SaveFile(OwnerWindow, const cFilePrompt& request, std::string& path) {
  return NextPath(request.title, path);
}

bool cScriptedPrompt::BrowseFolder(OwnerWindow, const std::string& title, std::string& path) {
  return NextPath(title, path);
}

void cScriptedPrompt::ShowMessageWindow(OwnerWindow, const std::string& caption, const std::string& text) {
  m_shown.push_back({ToUtf8(caption), ToUtf8(text), eButtons::Ok});
}

}  // namespace velmora::testing
