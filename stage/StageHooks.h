#pragma once
#include <cstdint>
#include <functional>

namespace velmora {

class cEdBlock;
class cEdChara;
class cEdItem;

// What the stage logic asks of the stage window. Every hook may stay empty
// (tests, tools): the logic then just skips the visible part.
struct cStageHooks {
  std::function<void()> refreshUndoButtons;
  std::function<void(bool busy)> busyCursor;
  // Menu check, toolbar button and palette windows of the new layer.
  std::function<void(int layer)> layerShown;
  // Opens the parameter editor on a placed record, modally.
  std::function<void(cEdBlock&)> editBlock;
  std::function<void(cEdChara&)> editChara;
  std::function<void(cEdItem&)> editItem;
  std::function<void()> saveEditorSettings;
  std::function<void()> destroyMainWindow;
  // Free physical memory in bytes; empty asks the system.
  std::function<uint64_t()> freeMemory;
};

cStageHooks& StageHooks();

void CallHook(const std::function<void()>& hook);
uint64_t FreeMemoryForStage();

}  // namespace velmora
