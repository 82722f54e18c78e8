#include "project/ExitSave.h"

#include "core/EditConfig.h"
#include "core/ProjectPaths.h"
#include "core/SaveData.h"
#include "objects/GValInfo.h"
#include "stage/StageEdit.h"

namespace velmora {

bool SaveOnExit(EditConfig& config, bool started) {
  if (!started || g_bNoSave) return false;
  config.m_strLastStage = StageEdit().m_strPath;
  const bool configSaved = config.SaveFile(PathOf(ePath::EditConfig)) != 0;
  const bool namesSaved = SaveCommonVars();
  return configSaved && namesSaved;
}

}  // namespace velmora
