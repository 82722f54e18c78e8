#pragma once
#include <Qt>
#include <vector>

namespace velmora {

// One accelerator: a key with its modifiers that becomes a command.
struct cAccelEntry {
  int key = 0;  // Qt::Key
  Qt::KeyboardModifiers modifiers = Qt::NoModifier;
  int command = 0;
};
using cAccelTable = std::vector<cAccelEntry>;

// A table with the focus target it is for: 0 for the window itself, else
// the id of the control that must have the focus.
struct cAccelBinding {
  int focusId = 0;
  cAccelTable table;
};

// The command of the first entry that matches, or 0.
int MatchAccel(const cAccelTable& table, int key, Qt::KeyboardModifiers modifiers);

}  // namespace velmora
