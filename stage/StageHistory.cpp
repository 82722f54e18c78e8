#include "stage/StageHistory.h"

#include <algorithm>
#include <functional>
#include <new>

#include "core/CheckedAccess.h"
#include "core/Log.h"
#include "core/SystemText.h"
#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "stage/StageHooks.h"

namespace velmora {
namespace {

// Heap cost of one block, character and item record with what they own:
// a fixed estimate, so the figures don't move with the build. It still
// rules the level count, since one step may change every cell.
constexpr uint64_t kBytesPerCell = 459 + 276 + 1137 + 453;

// Runs `fn` with the stage's cells and the step's changes of each layer in
// the mask: blocks, characters, items.
template <class Fn>
void ForEachLayer(uint32_t mask, Fn&& fn) {
  if (mask & kLayerBlock) fn(&cStage::m_vecBlockCell, &cHistoryStep::block);
  if (mask & kLayerChara) fn(&cStage::m_vecCharaCell, &cHistoryStep::chara);
  if (mask & kLayerItem) fn(&cStage::m_vecItemCell, &cHistoryStep::item);
}

struct cStack {
  std::vector<cHistoryStep>& steps;
  std::vector<uint32_t>& masks;
  int32_t& count;

  // Moves slot `to - 1` to the front (right) or the front slot to `to - 1`
  // (left): steps move, they are never copied.
  void RotateRight(int to) { Rotate(to, [](auto first, auto last) { std::rotate(first, last - 1, last); }); }
  void RotateLeft(int to) { Rotate(to, [](auto first, auto last) { std::rotate(first, first + 1, last); }); }

 private:
  template <class Fn>
  void Rotate(int to, Fn&& rotate) {
    const auto n = static_cast<std::ptrdiff_t>(std::min<size_t>(static_cast<size_t>(to), masks.size()));
    if (n < 2) return;
    rotate(steps.begin(), steps.begin() + n);
    rotate(masks.begin(), masks.begin() + n);
  }
};

cStack UndoStack() {
  cStageEdit& e = StageEdit();
  return {e.m_vecUndoStep, e.m_vecUndoMask, e.m_iUndoNum};
}

cStack RedoStack() {
  cStageEdit& e = StageEdit();
  return {e.m_vecRedoStep, e.m_vecRedoMask, e.m_iRedoNum};
}

bool MayRecord() { return EditStage().m_iUndoCount > 0 && !StageEdit().m_bTestPlay; }

// The held marks of the open step go, so that the next step starts with
// none; the cost is what the step holds.
void CloseStep() {
  cStageEdit& e = StageEdit();
  if (!e.m_bStepOpen) return;
  e.m_bStepOpen = 0;
  if (e.m_vecUndoStep.empty()) return;
  auto unmark = [&](int32_t i) {
    if (static_cast<size_t>(i) < e.m_vecStepHeld.size()) e.m_vecStepHeld[static_cast<size_t>(i)] = 0;
  };
  ForEachLayer(kLayerAll, [&](auto, auto changes) {
    const auto& held = e.m_vecUndoStep.front().*changes;
    for (const auto& [i, record] : held.kept) unmark(i);
    for (int32_t i : held.emptied) unmark(i);
  });
}

// A step that can't get the memory for one more cell would undo only part
// of what it changed: the history goes, and so does the program.
template <class T>
void Hold(cLayerChanges<T>& changes, int32_t index, const T& cell) {
  try {
    if (IsOccupied(cell)) {
      changes.kept.emplace_back(index, cell);
    } else {
      changes.emptied.push_back(index);
    }
  } catch (const std::bad_alloc&) {
    ClearHistory();
    StopOutOfMemory();
  }
}

template <class T>
void Note(const T& cell, std::vector<T> cStage::*layer, cLayerChanges<T> cHistoryStep::*changes, uint32_t bit) {
  cStageEdit& e = StageEdit();
  if (!e.m_bStepOpen || e.m_vecUndoStep.empty() || !(e.m_vecUndoMask.front() & bit)) return;
  const std::vector<T>& cells = EditStage().*layer;
  const std::less<const T*> before;
  if (cells.empty() || before(&cell, cells.data()) || !before(&cell, cells.data() + cells.size())) return;
  const auto index = static_cast<size_t>(&cell - cells.data());
  if (index >= e.m_vecStepHeld.size()) return;
  uint8_t& held = e.m_vecStepHeld[index];
  if (held & bit) return;
  held = static_cast<uint8_t>(held | bit);
  Hold(e.m_vecUndoStep.front().*changes, static_cast<int32_t>(index), cell);
}

// Lists the occupied cells of a layer inside the stage, in rising order,
// and hands each to `take`. The bounds are checked once, as the loop runs
// over every cell of the largest stage.
template <class T, class Take>
void ScanOccupied(const std::vector<T>& layer, Take&& take) {
  const cStage& stage = EditStage();
  if (stage.m_nHeight <= 0 || stage.m_nWidth <= 0) return;
  const int last = stage.CellIndex(stage.m_nWidth - 1, stage.m_nHeight - 1);
  if (static_cast<size_t>(last) >= layer.size()) {
    BadIndex('V', last, static_cast<int>(layer.size()), static_cast<int>(sizeof(T)), eBadIndexClose::DestroyAtOnce);
    return;
  }
  for (int y = 0; y < stage.m_nHeight; ++y) {
    const int row = stage.CellIndex(0, y);
    for (int i = row; i < row + stage.m_nWidth; ++i) {
      if (IsOccupied(layer[static_cast<size_t>(i)])) take(i);
    }
  }
}

// The oldest step falls off a full stack: its slot takes the new one.
// False when nothing may be recorded.
bool PushStep(uint32_t mask, cStack stack, cHistoryStep step) {
  const int levels = std::min(EditStage().m_iUndoCount, static_cast<int>(stack.masks.size()));
  if (levels <= 0 || !MayRecord()) return false;
  stack.RotateRight(levels);
  stack.steps.front() = std::move(step);
  stack.masks.front() = mask;
  if (stack.count < levels) ++stack.count;
  return true;
}

// The present state of the cells a step holds: what the step's inverse
// must bring back.
cHistoryStep PresentOf(const cHistoryStep& step, uint32_t mask) {
  cHistoryStep present;
  const cStage& stage = EditStage();
  ForEachLayer(mask, [&](auto layer, auto changes) {
    const auto& cells = stage.*layer;
    auto& into = present.*changes;
    const auto& held = step.*changes;
    for (const auto& [i, record] : held.kept) Hold(into, i, VecAt(cells, i));
    for (int32_t i : held.emptied) Hold(into, i, VecAt(cells, i));
  });
  return present;
}

// The step's cells come back into the stage, each with what it inherits
// now; the step is used up.
void Restore(cHistoryStep& step, uint32_t mask) {
  cStage& stage = EditStage();
  cStagePaletteScope scope(stage);
  ForEachLayer(mask, [&](auto layer, auto changes) {
    auto& cells = stage.*layer;
    auto& held = step.*changes;
    for (int32_t i : held.emptied) VecAt(cells, i).m_nGraphicNo = 0;
    for (auto& [i, record] : held.kept) {
      auto& cell = VecAt(cells, i);
      cell = std::move(record);
      cell.ApplyInherit();
    }
  });
}

// Only the restored cells can hold a second player when the character
// layer came back; the last in row order stays.
void RemovePlayersAfterRestore(const cHistoryStep& step, uint32_t mask) {
  if (!(mask & kLayerChara)) {
    EditStage().RemoveSurplusPlayers();
    return;
  }
  std::vector<int32_t> restored;
  restored.reserve(step.chara.kept.size());
  for (const auto& [i, record] : step.chara.kept) restored.push_back(i);
  std::sort(restored.begin(), restored.end());
  EditStage().KeepLastPlayer(restored);
}

// Moves the newest step of `from` back into the stage; the present state
// of its cells goes to `to` as the step that reverses it.
void StepBack(cStack from, cStack to) {
  CloseStep();
  if (EditStage().m_iUndoCount <= 0 || from.count <= 0 || from.steps.empty()) return;
  const uint32_t mask = from.masks.front();
  cHistoryStep step = std::move(from.steps.front());
  from.steps.front() = {};
  from.RotateLeft(from.count);
  --from.count;
  if (MayRecord()) PushStep(mask, to, PresentOf(step, mask));
  Restore(step, mask);
  RemovePlayersAfterRestore(step, mask);
}

}  // namespace

uint64_t EstimateStep(int width, int height) {
  const uint64_t pitch = uint64_t{1} << CalcPitchShift(width);
  return pitch * static_cast<uint64_t>(height < 0 ? 0 : height) * kBytesPerCell;
}

void ClearHistory() {
  cStageEdit& e = StageEdit();
  std::vector<cHistoryStep>().swap(e.m_vecUndoStep);
  std::vector<cHistoryStep>().swap(e.m_vecRedoStep);
  std::vector<uint32_t>().swap(e.m_vecUndoMask);
  std::vector<uint32_t>().swap(e.m_vecRedoMask);
  std::vector<uint8_t>().swap(e.m_vecStepHeld);
  e.m_bStepOpen = 0;
  e.m_iUndoNum = 0;
  e.m_iRedoNum = 0;
}

void AllocHistory(int levels, int pitch, int height) {
  ClearHistory();
  if (levels < 1) return;
  cStage& stage = EditStage();
  const uint64_t step = EstimateStep(stage.m_nPitch, stage.m_nHeight);
  const uint64_t avail = FreeMemoryForStage();
  if (avail < step + step * static_cast<uint64_t>(stage.m_iUndoCount) * 2) {
    const uint64_t fits = avail < step ? 0 : (avail - step) / (step * 2);
    stage.m_iUndoCount = static_cast<int32_t>(fits);
    levels = stage.m_iUndoCount;
    DebugBox(SysText("元に戻せる回数を %d回 に強制変更！"), levels);
    if (levels < 1) return;
  }
  cStageEdit& e = StageEdit();
  try {
    e.m_vecUndoStep.resize(static_cast<size_t>(levels));
    e.m_vecRedoStep.resize(static_cast<size_t>(levels));
    e.m_vecUndoMask.assign(static_cast<size_t>(levels), 0);
    e.m_vecRedoMask.assign(static_cast<size_t>(levels), 0);
    e.m_vecStepHeld.assign(static_cast<size_t>(pitch) * static_cast<size_t>(height < 0 ? 0 : height), 0);
  } catch (const std::bad_alloc&) {
    ClearHistory();
    StopOutOfMemory();
  }
}

void RebuildHistory() {
  const cStage& stage = EditStage();
  AllocHistory(stage.m_iUndoCount, stage.m_nPitch, stage.m_nHeight);
}

void RecordStep(uint32_t mask) {
  CloseStep();
  if (PushStep(mask, UndoStack(), {})) StageEdit().m_bStepOpen = 1;
  // Steps that can't be redone any more give their memory back now.
  cStageEdit& e = StageEdit();
  for (int i = 0; i < e.m_iRedoNum && static_cast<size_t>(i) < e.m_vecRedoStep.size(); ++i) e.m_vecRedoStep[static_cast<size_t>(i)] = {};
  e.m_iRedoNum = 0;
  CallHook(StageHooks().refreshUndoButtons);
}

void NoteCellWrite(const cEdBlock& cell) { Note(cell, &cStage::m_vecBlockCell, &cHistoryStep::block, kLayerBlock); }
void NoteCellWrite(const cEdChara& cell) { Note(cell, &cStage::m_vecCharaCell, &cHistoryStep::chara, kLayerChara); }
void NoteCellWrite(const cEdItem& cell) { Note(cell, &cStage::m_vecItemCell, &cHistoryStep::item, kLayerItem); }

void NoteLayerWrite(uint32_t mask) {
  const cStage& stage = EditStage();
  ForEachLayer(mask, [&](auto layer, auto) {
    const auto& cells = stage.*layer;
    ScanOccupied(cells, [&](int i) { NoteCellWrite(cells[static_cast<size_t>(i)]); });
  });
}

void Undo() { StepBack(UndoStack(), RedoStack()); }
void Redo() { StepBack(RedoStack(), UndoStack()); }

bool CanUndo() { return EditStage().m_iUndoCount > 0 && StageEdit().m_iUndoNum > 0; }
bool CanRedo() { return EditStage().m_iUndoCount > 0 && StageEdit().m_iRedoNum > 0; }

}  // namespace velmora
