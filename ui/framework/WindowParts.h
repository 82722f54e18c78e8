#pragma once
#include <vector>

namespace velmora {

// A tool bar button: an image of the window's strip and the command it
// sends. Command 0 is a separator. The tip is UTF-8, the dialog's own words.
struct cToolButton {
  int image = 0;
  int command = 0;
  const char* tip = "";
  bool checkable = false;
};

// An entry of a pop-up menu; command 0 is a separator. Text in UTF-8.
struct cMenuItem {
  int command = 0;
  const char* text = "";
  bool enabled = true;
  bool checked = false;
  bool checkable = false;  // a menu bar entry that shows a check mark
};

// One drop-down menu of a window's menu bar; its title is UTF-8 too.
struct cMenuPopup {
  const char* title = "";
  std::vector<cMenuItem> items;
};

}  // namespace velmora
