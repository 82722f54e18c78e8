#pragma once
#include <string>
#include <vector>

namespace velmora {

// The questions and boxes that logic asks. The GUI answers with real
// dialogs; tests answer from a script and keep every text shown. All texts
// are CP932.

using OwnerWindow = const void*;  // opaque: the window a box belongs to, or null

enum class eButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class eIcon { None, Error, Warning, Question, Information };
enum class eAnswer { Ok, Cancel, Yes, No };

struct cFilePrompt {
  std::string title;
  std::string filter;         // "label\0pattern\0" pairs as one string, like the Windows prompts
  std::string folder;         // stored path of the folder to start in
  std::string defaultExt;     // without the dot
  std::string initialName;
};

class cPrompt {
 public:
  virtual ~cPrompt() = default;
  virtual eAnswer Ask(OwnerWindow owner, const std::string& caption, const std::string& text, eButtons buttons,
                      eIcon icon) = 0;
  // Each gives false when the author cancels; `path` is a stored path.
  virtual bool OpenFile(OwnerWindow owner, const cFilePrompt& request, std::string& path) = 0;
  // Several files chosen at once, in the order the prompt gives them. A
  // prompt that can't take several asks for one.
  virtual bool OpenFiles(OwnerWindow owner, const cFilePrompt& request, std::vector<std::string>& paths) {
    std::string path;
    if (!OpenFile(owner, request, path)) return false;
    paths.push_back(path);
    return true;
  }
  virtual bool SaveFile(OwnerWindow owner, const cFilePrompt& request, std::string& path) = 0;
  virtual bool BrowseFolder(OwnerWindow owner, const std::string& title, std::string& path) = 0;
  // A window with a caption and a line of text and no buttons, shown while
  // a long operation runs.
  virtual void ShowMessageWindow(OwnerWindow /*owner*/, const std::string& /*caption*/,
                                 const std::string& /*text*/) {}
  virtual void CloseMessageWindow() {}
};

// The prompt in force. Without a GUI it is a quiet one that prints boxes to
// standard error and answers every question with No or Cancel, so that a
// command-line tool never changes data on its own.
cPrompt& Prompt();
// Installs `prompt` (not owned); null brings back the quiet one.
void SetPrompt(cPrompt* prompt);

}  // namespace velmora
