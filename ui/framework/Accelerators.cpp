#include "ui/framework/Accelerators.h"

namespace velmora {

int MatchAccel(const cAccelTable& table, int key, Qt::KeyboardModifiers modifiers) {
  // The keypad flag says where a key lies, not what it means.
  const Qt::KeyboardModifiers relevant = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;
  for (const cAccelEntry& entry : table) {
    if (entry.key == key && (entry.modifiers & relevant) == (modifiers & relevant)) return entry.command;
  }
  return 0;
}

}  // namespace velmora
