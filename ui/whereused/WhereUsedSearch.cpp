#include "ui/whereused/WhereUsedSearch.h"

#include "project/whereused/FileUses.h"
#include "stage/Stage.h"
#include "stage/StageEdit.h"

namespace velmora {
namespace {

// The open stage as the author has it now, saved or not: its own palette
// means nothing to the other stages.
void FindInOpenStage(const cUseTarget& target, std::vector<cFoundUse>& results) {
  std::string file = StageEdit().m_strPath;
  if (file.starts_with(".\\")) file.erase(0, 2);
  for (cUse& use : FindInStage(EditStage(), target)) results.push_back({file, std::move(use)});
}

}  // namespace

void cWhereUsedSearch::Run() {
  m_index.Update();
  results.clear();
  const cUseTarget target{static_cast<eUseKind>(kind), number};
  if (IsStagePaletteKind(target.kind)) {
    FindInOpenStage(target, results);
  } else {
    for (const cWhereUsedIndex::cFound& found : m_index.Find(target)) results.push_back({*found.file, *found.use});
  }
  unreadable = m_index.UnreadableFiles();
}

cWhereUsedSearch& WhereUsedSearch() {
  static cWhereUsedSearch search;
  return search;
}

}  // namespace velmora
