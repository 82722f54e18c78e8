#include "ui/app/ProjectLoad.h"

#include "core/Log.h"
#include "core/PrjOption.h"
#include "core/ProjectPaths.h"
#include "objects/GValInfo.h"
#include "objects/Palette.h"
#include "project/Database.h"
#include "project/SystemRecord.h"
#include "project/WorldMap.h"
#include "stage/Stage.h"
#include "ui/surface/FixedBitmaps.h"
#include "ui/surface/PaletteBitmaps.h"

namespace velmora {
namespace {

bool Loaded(bool ok, const std::string& path) {
  if (!ok) ErrorBoxText(LoadFailureText(path).c_str());
  return ok;
}

}  // namespace

bool LoadProjectForEditor() {
  if (!Loaded(LoadCommonVars(), PathOf(ePath::GValInfo))) return false;
  std::string failed;
  if (!Loaded(Database().Load(failed), failed)) return false;
  if (!Loaded(SystemRecord().LoadFile(PathOf(ePath::System)), PathOf(ePath::System))) return false;
  if (!Loaded(CommonPalette().LoadFile(PathOf(ePath::CommonPalette)), PathOf(ePath::CommonPalette))) return false;
  if (!Loaded(ProjectOption().LoadFile(PathOf(ePath::PrjOption)), PathOf(ePath::PrjOption))) return false;
  if (!Loaded(WorldMap().LoadFile(PathOf(ePath::WorldMap)), PathOf(ePath::WorldMap))) return false;
  if (!LoadPaletteBitmaps()) return false;
  const cStage& stage = EditStage();
  const std::string stageBack = stage.m_vecBack.empty() ? std::string() : stage.m_vecBack.front().m_strPath;
  return LoadFixedBitmaps(stageBack, WorldMap().m_strBackPath);
}

}  // namespace velmora
