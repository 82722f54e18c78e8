#include "ui/controls/PathBrowse.h"

#include "core/SystemText.h"
#include "ui/controls/EditStr.h"
#include "ui/framework/Dialog.h"
#include "ui/framework/QtPrompt.h"

namespace velmora {

bool BrowseIntoEdit(cDialog& dialog, int editId, const cFilePrompt& request, const char* prefix) {
  cEditStr* edit = dialog.FindControlOf<cEditStr>(editId);
  std::string chosen;
  if (!edit || !Prompt().OpenFile(OwnerOf(dialog.Window()), request, chosen)) return false;
  if (chosen.empty() || chosen[0] == '\\' || chosen.find(':') != std::string::npos) return false;
  edit->SetText(prefix + chosen);
  return true;
}

cFilePrompt FilePromptOf(const char* title, const char* folder, const char* filterText, const char* pattern,
                         const char* defaultExt) {
  cFilePrompt request;
  request.title = SysText(title);
  request.folder = folder;
  request.filter = std::string(filterText) + '\0' + pattern + '\0';
  request.defaultExt = defaultExt;
  return request;
}

}  // namespace velmora
