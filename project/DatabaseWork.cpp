#include "project/DatabaseWork.h"

#include "core/Log.h"
#include "core/ProjectPaths.h"
#include "core/SystemText.h"
#include "graphics/CharaBitmaps.h"
#include "project/ProjectLoad.h"
#include "project/WorldMap.h"

namespace velmora {

// Every list grows, not the animations alone, and it is the project's own
// list that grows, not only the copy: the lists' record rule holds here,
// where the pages' rules would grow the animations' copy alone.
cDatabaseWork OpenDatabaseWork() {
  cEdDatabase& db = Database();
  for (int i = 0; i < kDbListCount; ++i) {
    const eDbList list = static_cast<eDbList>(i);
    db.List(list).GrowToLeast(DbListInfo(list).rule);
  }
  std::vector<cEdWorldChip>& chips = WorldMap().m_vecChips;
  if (static_cast<int>(chips.size()) < kWorldChipRule.least) chips.resize(static_cast<size_t>(kWorldChipRule.least));
  return {db, chips};
}

bool RebuildCharaBitmaps() {
  if (LoadCharaBitmaps(CharaBitmapSources(), true)) return true;
  ErrorBoxText(SysText("キャラの専用bmpの生成に失敗しました！"));
  return false;
}

bool ApplyDatabaseWork(const cDatabaseWork& work) {
  Database() = work.db;
  WorldMap().m_vecChips = work.chips;
  RebuildCharaBitmaps();
  const bool database = Database().Save(false);
  const bool worldMap = WorldMap().SaveFile(PathOf(ePath::WorldMap)) != 0;
  return database && worldMap;
}

}  // namespace velmora
