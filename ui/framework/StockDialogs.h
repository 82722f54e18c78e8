#pragma once
#include <cstdint>
#include <string>

class QWidget;

namespace velmora {

class cDialogManager;

// The small dialogs that many windows share. Texts and captions are CP932.

// Asks for a number between the limits; 1 with `value` stored on OK, 0 on Cancel.
// The label (UTF-8) names the value left of its edit.
int InputValue(QWidget* parent, cDialogManager& manager, int32_t& value, int minimum, int maximum,
               const std::string& caption, const char* label = nullptr);
// Asks for a text of at most `limit` bytes; with `countChars` set, the limit
// is also the width in characters.
int InputString(QWidget* parent, cDialogManager& manager, std::string& text, int limit, bool countChars,
                const std::string& caption);

// The window of the one long job that runs: text without buttons, and the
// busy cursor with `wait` set. A second call replaces the first window.
void ShowMessageWindow(QWidget* parent, cDialogManager& manager, const std::string& text,
                       const std::string& caption, bool wait);
void CloseMessageWindow();

}  // namespace velmora
