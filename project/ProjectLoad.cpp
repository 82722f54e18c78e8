#include "project/ProjectLoad.h"

#include <string>
#include <vector>

#include "core/Log.h"
#include "core/PrjOption.h"
#include "core/ProjectFolder.h"
#include "core/ProjectPaths.h"
#include "core/SaveData.h"
#include "objects/GValInfo.h"
#include "objects/Palette.h"
#include "project/Database.h"
#include "project/ProjectRefSizes.h"
#include "project/SystemRecord.h"
#include "project/WorldMap.h"
#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "graphics/FixedBitmaps.h"
#include "graphics/PaletteBitmaps.h"

namespace velmora {
namespace {

bool ReportFailure(const std::string& path) {
  ErrorBoxText(LoadFailureText(path).c_str());
  return false;
}

bool LoadRecord(cSaveData& record, ePath path) {
  return record.LoadFile(PathOf(path)) || ReportFailure(PathOf(path));
}

bool LoadDatabase() {
  std::string failedFile;
  if (!Database().Load(failedFile)) return ReportFailure(failedFile);
  // Everything read from here on checks its references against it.
  InstallDatabaseRefs();
  return true;
}

bool LoadCommonPalette() {
  if (!LoadRecord(CommonPalette(), ePath::CommonPalette)) return false;
  InstallPaletteLists(ePalette::Common, CommonPalette().Lists());
  return true;
}

// The records read behind the database, in the order they are read.
bool LoadProjectRecords() {
  return LoadRecord(SystemRecord(), ePath::System) && LoadCommonPalette() &&
         LoadRecord(ProjectOption(), ePath::PrjOption) && LoadRecord(WorldMap(), ePath::WorldMap);
}

std::string StageBackgroundFile() {
  const std::vector<cStageBack>& backs = EditStage().m_vecBack;
  return backs.empty() ? std::string() : backs.front().m_strPath;
}

bool LoadPictures() {
  if (!LoadPaletteBitmaps()) return false;
  if (!LoadFixedBitmaps(StageBackgroundFile(), WorldMap().m_strBackPath)) return false;
  // A character picture that is missing is told, and the project still opens.
  LoadCharaBitmaps(CharaBitmapSources(), false);
  return true;
}

void MarkStageUnnamed() {
  cStageEdit& edit = StageEdit();
  edit.m_strPath.clear();
  edit.m_bHasStage = 0;
}

// Only the files this build has just upgraded on reading.
void WriteBackUpgradedFiles() {
  const std::string& system = PathOf(ePath::System);
  if (IsOlderFile(system, kCurrentVersion)) SystemRecord().SaveFile(system);
  Database().Save(true);
  const std::string& worldMap = PathOf(ePath::WorldMap);
  if (IsOlderFile(worldMap, kCurrentVersion)) WorldMap().SaveFile(worldMap);
}

}  // namespace

std::vector<cCharaBitmapSource> CharaBitmapSources() {
  std::vector<cCharaBitmapSource> sources;
  for (const cEdCharaBmp& row : Database().m_CharaBmp.m_vecEntries) {
    sources.push_back({row.m_strPath, 32 * (row.m_bHuge ? row.m_iHugeSize : 1)});
  }
  return sources;
}

bool LoadProject() {
  if (!LoadCommonVars()) return ReportFailure(PathOf(ePath::GValInfo));
  if (!LoadDatabase() || !LoadProjectRecords()) return false;
  EnsureDefaultStage();
  if (!LoadPictures()) return false;
  MarkStageUnnamed();
  WriteBackUpgradedFiles();
  return true;
}

}  // namespace velmora
