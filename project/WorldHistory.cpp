#include "project/WorldHistory.h"

#include "platform/SystemMemory.h"
#include "project/WorldMap.h"

namespace velmora {
namespace {

constexpr uint64_t kCellBytes = 4;
constexpr uint64_t kEventBytes = 76;
constexpr uint64_t kPageBytes = 16;

}  // namespace

uint64_t EstimateWorldState(const cEdWorldMap& map) {
  uint64_t bytes = map.m_vecCells.size() * kCellBytes;
  for (const cEdWorldEvent& event : map.m_vecEvents) bytes += kEventBytes + event.m_vecPages.size() * kPageBytes;
  return bytes;
}

bool cWorldHistory::Push(std::deque<cWorldState>& stack, const cEdWorldMap& map) {
  const uint64_t available = freeMemory ? freeMemory() : FreePhysicalMemory();
  if (available <= EstimateWorldState(map)) {
    Clear();
    return false;
  }
  if (stack.size() >= kMaxStates) stack.pop_front();
  stack.push_back({map.m_vecCells, map.m_vecEvents});
  return true;
}

void cWorldHistory::Record(const cEdWorldMap& map) {
  Push(m_undo, map);
  m_redo.clear();
}

bool cWorldHistory::Step(std::deque<cWorldState>& from, std::deque<cWorldState>& to, cEdWorldMap& map) {
  if (from.empty() || !Push(to, map)) return false;
  map.m_vecCells = std::move(from.back().cells);
  map.m_vecEvents = std::move(from.back().events);
  from.pop_back();
  return true;
}

bool cWorldHistory::Undo(cEdWorldMap& map) { return Step(m_undo, m_redo, map); }

bool cWorldHistory::Redo(cEdWorldMap& map) { return Step(m_redo, m_undo, map); }

void cWorldHistory::Clear() {
  m_undo.clear();
  m_redo.clear();
}

}  // namespace velmora
