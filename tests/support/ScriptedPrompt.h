#pragma once
#include <deque>
#include <string>
#include <vector>

#include "core/Prompt.h"

namespace velmora::testing {

// Answers questions from a script and keeps every caption and text shown,
// converted to UTF-8 so tests can compare them with the literals they quote.
// An unscripted question gets the safe answer (No, Cancel, Ok for a plain box).
class cScriptedPrompt : public cPrompt {
 public:
  struct cShown {
    std::string caption;  // UTF-8
    std::string text;     // UTF-8
    eButtons buttons;
  };

  cScriptedPrompt();
  ~cScriptedPrompt() override;

  void QueueAnswer(eAnswer answer) { m_answers.push_back(answer); }
  void QueuePath(const std::string& storedPath) { m_paths.push_back(storedPath); }
  // The answer of one prompt for several files.
  void QueuePaths(const std::vector<std::string>& storedPaths);
  const std::vector<cShown>& Shown() const { return m_shown; }
  std::string LastText() const { return m_shown.empty() ? std::string() : m_shown.back().text; }

  eAnswer Ask(OwnerWindow owner, const std::string& caption, const std::string& text, eButtons buttons,
              eIcon icon) override;
  bool OpenFile(OwnerWindow owner, const cFilePrompt& request, std::string& path) override;
  bool OpenFiles(OwnerWindow owner, const cFilePrompt& request, std::vector<std::string>& paths) override;
  bool SaveFile(OwnerWindow owner, const cFilePrompt& request, std::string& path) override;
  bool BrowseFolder(OwnerWindow owner, const std::string& title, std::string& path) override;
  void ShowMessageWindow(OwnerWindow owner, const std::string& caption, const std::string& text) override;
  void CloseMessageWindow() override { ++m_closedWindows; }
  int ClosedMessageWindows() const { return m_closedWindows; }

 private:
  bool NextPath(const std::string& title, std::string& path);
  std::deque<eAnswer> m_answers;
  std::deque<std::string> m_paths;
  std::vector<cShown> m_shown;
  int m_closedWindows = 0;
};

}  // namespace velmora::testing
