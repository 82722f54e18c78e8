#pragma once
#include "core/Prompt.h"

class QWidget;

namespace velmora {

class cDialogManager;

// The questions and boxes of the logic library as real dialogs. Owner
// windows are the QWidget* that the GUI hands out as OwnerWindow.
class cQtPrompt : public cPrompt {
 public:
  explicit cQtPrompt(cDialogManager& manager) : m_manager(manager) {}

  eAnswer Ask(OwnerWindow owner, const std::string& caption, const std::string& text, eButtons buttons,
              eIcon icon) override;
  bool OpenFile(OwnerWindow owner, const cFilePrompt& request, std::string& path) override;
  bool OpenFiles(OwnerWindow owner, const cFilePrompt& request, std::vector<std::string>& paths) override;
  bool SaveFile(OwnerWindow owner, const cFilePrompt& request, std::string& path) override;
  bool BrowseFolder(OwnerWindow owner, const std::string& title, std::string& path) override;
  void ShowMessageWindow(OwnerWindow owner, const std::string& caption, const std::string& text) override;
  void CloseMessageWindow() override;

 private:
  cDialogManager& m_manager;
};

// An owner as the logic library carries it.
inline OwnerWindow OwnerOf(const QWidget* window) { return window; }

}  // namespace velmora
