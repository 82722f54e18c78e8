#pragma once
#include <string>

namespace velmora {

// The edit state beside the edit stage: which file it came from and what
// may differ from disk.
struct cStageEdit {
  std::string m_strPath;  // stored relative path of the stage file; empty before the first save
  int32_t m_bHasStage = 0;
  int32_t m_bStageChanged = 0;
  int32_t m_bCommonChanged = 0;
};

cStageEdit& StageEdit();

// "stg4_950": the extension a stage file of this build gets.
std::string CurrentStageExtension();

// Puts the work-folder backup back over a stage file cut off by a crash.
// Always 1: the load that follows reports what is wrong.
int CheckStageFile(const std::string& path);
int LoadStage(const std::string& path);
// 1 saved or nothing to save, 0 cancelled or failed.
int SaveStage(int overwrite);
int OpenStage();
void CloseStage();
// `base` names a stage by any version; `out` is its newest file.
int FindLatestVersion(std::string& out, const std::string& base, const std::string& extension);
int LoadStagePalette();
int SaveStagePalette();
bool SaveCommonPalette();
// 0 keeps the stage window open.
int AskSaveBeforeExit();
// At start-up: the stage edited last, read on this thread; a stage that
// can't be read leaves an empty 32 x 32 one with no file.
void OpenLastStage(const std::string& path);

}  // namespace velmora

namespace velmora {

enum eNewStagePalette { kNewPaletteFromTemplate = 0, kNewPaletteEmpty = 1, kNewPaletteFromCommon = 2, kNewPaletteFromFile = 3 };

// The new-stage dialog's OK: the template (any version of it, the newest
// is read; empty for a default stage) and where the stage palette comes
// from. 0 leaves the dialog open (the author kept the stage) or cancelled.
int CreateNewStage(const std::string& templatePath, int paletteSource, const std::string& palettePath);

}  // namespace velmora
