#include "ui/whereused/WhereUsedSearch.h"

namespace velmora {

void cWhereUsedSearch::Run() {
  m_index.Update();
  results.clear();
  for (const cWhereUsedIndex::cFound& found : m_index.Find({static_cast<eUseKind>(kind), number})) {
    results.push_back({*found.file, *found.use});
  }
  unreadable = m_index.UnreadableFiles();
}

cWhereUsedSearch& WhereUsedSearch() {
  static cWhereUsedSearch search;
  return search;
}

}  // namespace velmora
