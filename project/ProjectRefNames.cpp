#include "project/ProjectRefNames.h"

#include "project/Database.h"

namespace velmora {
namespace {

template <class tEntry>
const tEntry* RowOf(const cDbList<tEntry>& list, int row) {
  if (row < 0 || row >= list.Count()) return nullptr;
  return &list.m_vecEntries[static_cast<size_t>(row)];
}

template <class tFramed>
std::vector<int> TimesOf(const tFramed* entry) {
  std::vector<int> times;
  if (!entry) return times;
  for (const auto& frame : entry->m_vecFrames) times.push_back(frame.m_iTime);
  return times;
}

// A character or screen effect lasts for its first parameter; the kind
// without parameters lasts no time at all.
template <class tEffect>
int RunningTime(const tEffect* effect) {
  return effect && effect->m_iKind != 0 ? effect->m_aiParam[0] : 0;
}

}  // namespace

std::string cProjectRefNames::DbRowName(eDbList list, int row) const {
  const cDbListBase& entries = Database().List(list);
  if (list == eDbList::Count || row < 0 || row >= entries.Count()) return {};
  return entries.NameAt(row);
}

std::vector<int> cProjectRefNames::FrameTimes(eDbList list, int row) const {
  if (list == eDbList::Anime) return TimesOf(RowOf(Database().m_Anime, row));
  if (list == eDbList::Effect) return TimesOf(RowOf(Database().m_Effect, row));
  return {};
}

int cProjectRefNames::EffectTime(eDbList list, int row) const {
  if (list == eDbList::CharaEffect) return RunningTime(RowOf(Database().m_CharaEffect, row));
  if (list == eDbList::ScrEffect) return RunningTime(RowOf(Database().m_ScrEffect, row));
  return 0;
}

}  // namespace velmora
