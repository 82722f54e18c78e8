#pragma once

namespace velmora {

// Qt's own windows (file prompts, message box buttons, edit menus) speak
// the editor's language: Qt's Japanese catalogue is installed once per
// process, and Japanese becomes the default locale. False when the
// catalogue isn't on the machine; the windows then stay in English.
bool InstallJapaneseCatalogue();

}  // namespace velmora
