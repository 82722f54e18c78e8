#pragma once
#include <cstdint>
#include <string>

namespace velmora {

// What the stage settings page shows about memory for a size in its fields.
struct cHistoryMemory {
  uint64_t use = 0;    // bytes the stage itself needs
  uint64_t limit = 0;  // bytes there are for stage and history
  int64_t maxLevels = 0;
  std::string figures;  // "use KB\r\nlimit KB\r\n", CP932
  std::string warning;  // the level drop, or empty
};

// Drops the history first, so the figures see memory free of it.
cHistoryMemory HistoryMemoryFigures(int width, int height);

// After OK of the stage option dialog: the edit stage already holds the new
// level count. false when memory refused a rise and the old count is back.
bool ApplyUndoLevels(int oldLevels);

}  // namespace velmora
