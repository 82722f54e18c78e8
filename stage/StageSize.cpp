#include "stage/StageSize.h"

#include <algorithm>

#include "core/Log.h"
#include "core/Prompt.h"
#include "core/SaveData.h"
#include "core/SystemText.h"
#include "stage/Stage.h"
#include "stage/StageHistory.h"
#include "stage/StageHooks.h"

namespace velmora {

bool ApplyStageSize(int width, int height, int dirX, int dirY) {
  CallHook(StageHooks().saveEditorSettings);
  width = std::max(width, kMinStageWidth);
  height = std::max(height, kMinStageHeight);
  cStage& stage = EditStage();
  if (width == stage.m_nWidth && height == stage.m_nHeight) return false;
  ClearHistory();
  const bool grows = width > stage.m_nWidth || height > stage.m_nHeight;
  if (grows && FreeMemoryForStage() < EstimateStep(width, height) * 2) {
    ErrorBox("%s", SysText("メモリ不足により、サイズの変更に失敗しました！"));
    return false;
  }
  Prompt().ShowMessageWindow(nullptr, SysText("ステージサイズの変更"), SysText("サイズを変更しています..."));
  const bool resized = stage.SetSize(width, height, dirX, dirY) != 0;
  Prompt().CloseMessageWindow();
  if (!resized) {
    ErrorBox("%s", SysText("サイズの変更に失敗しました！"));
    g_bNoSave = 1;
    CallHook(StageHooks().destroyMainWindow);
  }
  return resized;
}

}  // namespace velmora
