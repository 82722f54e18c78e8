#include "stage/HistoryMemory.h"

#include <cstdio>

#include "core/Log.h"
#include "core/SystemText.h"
#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "stage/StageHistory.h"
#include "stage/StageHooks.h"

namespace velmora {
namespace {

std::string Format(const char* format, auto... args) {
  char buffer[256];
  std::snprintf(buffer, sizeof buffer, format, args...);
  return buffer;
}

}  // namespace

cHistoryMemory HistoryMemoryFigures(int width, int height) {
  ClearHistory();
  const cStage& stage = EditStage();
  cHistoryMemory result;
  const uint64_t per = EstimateStep(width, height);
  result.use = per * 2;
  result.limit = EstimateStep(stage.m_nWidth, stage.m_nHeight) + FreeMemoryForStage();
  result.maxLevels = per == 0 ? 0 : (static_cast<int64_t>(result.limit) - static_cast<int64_t>(result.use)) / static_cast<int64_t>(per);
  result.figures = Format("%9u KB\r\n%9u KB\r\n", static_cast<unsigned>(result.use >> 10), static_cast<unsigned>(result.limit >> 10));
  if (result.maxLevels < stage.m_iUndoCount) {
    result.warning = Format(SysText("※元に戻せる回数 %d → %d"), stage.m_iUndoCount, static_cast<int>(result.maxLevels));
  }
  return result;
}

bool ApplyUndoLevels(int oldLevels) {
  cStage& stage = EditStage();
  StageEdit().m_bStageChanged = 1;
  const int newLevels = stage.m_iUndoCount;
  if (newLevels > oldLevels) {
    const uint64_t step = EstimateStep(stage.m_nPitch, stage.m_nHeight);
    if (FreeMemoryForStage() < step * static_cast<uint64_t>(newLevels - oldLevels) * 2) {
      stage.m_iUndoCount = oldLevels;
      ErrorBox("%s", SysText("メモリ不足により、「元に戻せる回数」が変更できませんでした！"));
      return false;
    }
  }
  if (newLevels != oldLevels) AllocHistory(stage.m_iUndoCount, stage.m_nPitch, stage.m_nHeight);
  return true;
}

}  // namespace velmora
