#pragma once
#include <cstdint>
#include <deque>
#include <functional>
#include <vector>

#include "project/WorldMapRecords.h"

namespace velmora {

class cEdWorldMap;

// A state of the map as undo keeps it: all its cells and all its events.
struct cWorldState {
  std::vector<int32_t> cells;
  std::vector<cEdWorldEvent> events;
};

// The bytes a state of `map` is estimated to take: 4 a cell, 76 an event
// and 16 a page of it.
uint64_t EstimateWorldState(const cEdWorldMap& map);

// The undo and redo of the world map: whole states, at most three of them
// on each side. A state is only kept while free memory exceeds its
// estimate; when it doesn't, the whole history goes instead.
class cWorldHistory {
 public:
  static constexpr size_t kMaxStates = 3;

  // Free physical memory in bytes; empty asks the system.
  std::function<uint64_t()> freeMemory;

  // The map as it is now becomes the newest undo state; redo empties.
  void Record(const cEdWorldMap& map);
  // Each gives false, doing nothing, with no state to go back (or on) to.
  bool Undo(cEdWorldMap& map);
  bool Redo(cEdWorldMap& map);
  void Clear();
  size_t UndoStates() const { return m_undo.size(); }
  size_t RedoStates() const { return m_redo.size(); }

 private:
  bool Push(std::deque<cWorldState>& stack, const cEdWorldMap& map);
  bool Step(std::deque<cWorldState>& from, std::deque<cWorldState>& to, cEdWorldMap& map);

  std::deque<cWorldState> m_undo;
  std::deque<cWorldState> m_redo;
};

}  // namespace velmora
