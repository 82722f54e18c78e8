#pragma once
#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "objects/Block.h"
#include "objects/Chara.h"
#include "objects/Item.h"
#include "stage/HistoryStep.h"

namespace velmora {

class cStage;
enum class eStageLoad;

// The edit state beside the edit stage: which file it came from and what
// may differ from disk.
struct cStageEdit {
  std::string m_strPath;  // stored relative path of the stage file; empty before the first save
  int32_t m_bHasStage = 0;
  int32_t m_bStageChanged = 0;
  int32_t m_bCommonChanged = 0;

  // Undo history: slot 0 is the newest; a slot's mask names the layers it
  // covers (1 blocks, 2 characters, 4 items), and the slot holds the cells
  // of those layers that its step changed.
  std::vector<cHistoryStep> m_vecUndoStep, m_vecRedoStep;
  std::vector<uint32_t> m_vecUndoMask, m_vecRedoMask;
  // While the newest undo step is open, the layer bits of every cell it
  // holds already, so that a cell written twice keeps its first state.
  std::vector<uint8_t> m_vecStepHeld;
  int32_t m_bStepOpen = 0;
  int32_t m_iUndoNum = 0;
  int32_t m_iRedoNum = 0;
  int32_t m_bTestPlay = 0;

  // Tools and brush.
  int32_t m_iLayer = 0;  // 0 blocks, 1 characters, 2 items
  int32_t m_iReturnLayer = 0;
  int32_t m_iTool = 0;
  int32_t m_iCursorMode = 0;
  int32_t m_iRightMode = 0;
  std::vector<cEdBlock> m_vecBrushBlock;
  std::vector<cEdChara> m_vecBrushChara;
  std::vector<cEdItem> m_vecBrushItem;
  int32_t m_iBrushW = 1;
  int32_t m_iBrushH = 1;
  int32_t m_iRangeX = -1;
  int32_t m_iRangeY = -1;
  int32_t m_bDrag = 0;
  int32_t m_iLineX = 0, m_iLineY = 0;
  int32_t m_iRectX = 0, m_iRectY = 0, m_iRectW = 0, m_iRectH = 0;
  struct cLayerBrush {
    int32_t m_iPltIndex = 0;
    int32_t m_iBrushW = 1;
    int32_t m_iBrushH = 1;
  };
  std::array<cLayerBrush, 3> m_aLayerBrush;
  int32_t m_iPltSource = 0;  // 0 common palette, 1 stage palette
  int32_t m_iPltIndex = 0;   // -1 when the brush came from the stage

  // Palette clipboard, one slot per layer.
  std::shared_ptr<cEdBlock> m_pClipBlock;
  std::shared_ptr<cEdChara> m_pClipChara;
  std::shared_ptr<cEdItem> m_pClipItem;
  int32_t m_bClip = 0;
  int32_t m_iClipIndex = -1;  // -1 when it came from a stage cell
  int32_t m_iClipSource = 0;
  int32_t m_bClipCut = 0;

  // What a parameter editor works on: 0 a placed cell, 1 a stage palette
  // entry, 2 a common palette entry, 3 a default entry of the project option.
  cEdBlock* m_pEditBlock = nullptr;
  cEdChara* m_pEditChara = nullptr;
  cEdItem* m_pEditItem = nullptr;
  int32_t m_iEditTarget = 0;
};

cStageEdit& StageEdit();

// "stg4_950": the extension a stage file of this build gets.
std::string CurrentStageExtension();

// Puts the work-folder backup back over a stage file cut off by a crash.
// Always 1: the load that follows reports what is wrong.
int CheckStageFile(const std::string& path);
// Reads `into` from a stage file by the loader's worker; a failed read is
// reported, and `into` is then only fit to be thrown away.
eStageLoad LoadStage(const std::string& path, cStage& into);
// 1 saved or nothing to save, 0 cancelled or failed.
int SaveStage(int overwrite);
// Both first ask about unsaved work as leaving does; 0 when the author
// stopped there or, for open, the file was not read (the stage stays).
int OpenStage();
// The same for a stage file the caller names (a stored path).
int OpenStageFile(const std::string& path);
int CloseStage();
// `base` names a stage by any version; `out` is its newest file.
int FindLatestVersion(std::string& out, const std::string& base, const std::string& extension);
int LoadStagePalette();
int SaveStagePalette();
// The three palette lists of a stage palette file take the place of the
// stage's own only when the whole file was read; false leaves them alone.
bool ReadStagePaletteFile(const std::string& path, cStage& stage);
// The words for a stage palette file that could not be read: a format for
// its path.
const char* StagePaletteLoadFailure();
bool SaveCommonPalette();
// The questions before unsaved work is left: on closing the window, and
// before another stage is opened or the stage closed. 0 stops the leaving.
int AskSaveBeforeExit();
// At start-up: the stage edited last, read on this thread; a stage that
// can't be read whole leaves an empty 32 x 32 one with no file, as opening
// it from the menu would refuse it.
void OpenLastStage(const std::string& path);

}  // namespace velmora

namespace velmora {

enum eNewStagePalette { kNewPaletteFromTemplate = 0, kNewPaletteEmpty = 1, kNewPaletteFromCommon = 2, kNewPaletteFromFile = 3 };

// What the new-stage dialog does after its OK: close with OK, stay open
// because the author kept the present stage, or close as cancelled
// because a file was missing or unreadable (the error was shown).
enum class eNewStageResult { Created, Kept, Failed };

// The new-stage dialog's OK: the template (any version of it, the newest
// is read; empty for a default stage) and where the stage palette comes
// from.
eNewStageResult CreateNewStage(const std::string& templatePath, int paletteSource, const std::string& palettePath);

}  // namespace velmora
