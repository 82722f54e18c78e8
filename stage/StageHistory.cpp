#include "stage/StageHistory.h"

#include <algorithm>
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
// a fixed estimate, so the figures don't move with the build.
constexpr uint64_t kBytesPerCell = 459 + 276 + 1137 + 453;

// The three layers of one slot or of the stage itself.
struct cLayers {
  std::vector<cEdBlock>* block;
  std::vector<cEdChara>* chara;
  std::vector<cEdItem>* item;
};

using cSlotCells = cStageEdit::cSlotCells;

// Runs `fn` with the member pointers of each layer in the mask, blocks,
// characters, items.
template <class Fn>
void ForEachLayer(uint32_t mask, Fn&& fn) {
  if (mask & kLayerBlock) fn(&cLayers::block, &cSlotCells::block);
  if (mask & kLayerChara) fn(&cLayers::chara, &cSlotCells::chara);
  if (mask & kLayerItem) fn(&cLayers::item, &cSlotCells::item);
}

struct cStack {
  std::vector<std::vector<cEdBlock>>& block;
  std::vector<std::vector<cEdChara>>& chara;
  std::vector<std::vector<cEdItem>>& item;
  std::vector<uint32_t>& masks;
  std::vector<cSlotCells>& cells;
  int32_t& count;

  cLayers Slot(int i) { return {&VecAt(block, i), &VecAt(chara, i), &VecAt(item, i)}; }
  cSlotCells& Cells(int i) { return VecAt(cells, i); }

  // Moves slot `to - 1` to the front (right) or the front slot to `to - 1`
  // (left) by swapping buffers: a step is never copied within its stack.
  void RotateRight(int to) { Rotate(to, [](auto first, auto last) { std::rotate(first, last - 1, last); }); }
  void RotateLeft(int to) { Rotate(to, [](auto first, auto last) { std::rotate(first, first + 1, last); }); }

 private:
  template <class Fn>
  void Rotate(int to, Fn&& rotate) {
    const auto n = static_cast<std::ptrdiff_t>(std::min<size_t>(static_cast<size_t>(to), masks.size()));
    if (n < 2) return;
    rotate(block.begin(), block.begin() + n);
    rotate(chara.begin(), chara.begin() + n);
    rotate(item.begin(), item.begin() + n);
    rotate(masks.begin(), masks.begin() + n);
    rotate(cells.begin(), cells.begin() + n);
  }
};

cStack UndoStack() {
  cStageEdit& e = StageEdit();
  return {e.m_vecUndoBlock, e.m_vecUndoChara, e.m_vecUndoItem, e.m_vecUndoMask, e.m_vecUndoCells, e.m_iUndoNum};
}

cStack RedoStack() {
  cStageEdit& e = StageEdit();
  return {e.m_vecRedoBlock, e.m_vecRedoChara, e.m_vecRedoItem, e.m_vecRedoMask, e.m_vecRedoCells, e.m_iRedoNum};
}

cLayers PresentLayers() {
  cStage& s = EditStage();
  return {&s.m_vecBlockCell, &s.m_vecCharaCell, &s.m_vecItemCell};
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

// The cells that the slot held from an earlier step are emptied first, so
// that the slot reads as a whole copy of the layer.
template <class T>
void Snapshot(std::vector<T>& slot, std::vector<int32_t>& held, const std::vector<T>& layer) {
  for (int32_t i : held) VecAt(slot, i).m_nGraphicNo = 0;
  held.clear();
  if (slot.size() < layer.size()) {
    BadIndex('V', static_cast<int>(layer.size()) - 1, static_cast<int>(slot.size()), static_cast<int>(sizeof(T)),
             eBadIndexClose::DestroyAtOnce);
    return;
  }
  ScanOccupied(layer, [&](int i) {
    slot[static_cast<size_t>(i)] = layer[static_cast<size_t>(i)];
    held.push_back(i);
  });
}

// The layer's cells `occupied` are emptied and the slot's cells come back
// in their place, each with what it inherits now.
template <class T>
void Restore(std::vector<T>& layer, const std::vector<int32_t>& occupied, const std::vector<T>& slot,
             const std::vector<int32_t>& held) {
  for (int32_t i : occupied) VecAt(layer, i).m_nGraphicNo = 0;
  for (int32_t i : held) {
    T& cell = VecAt(layer, i);
    cell = VecAt(slot, i);
    cell.ApplyInherit();
  }
}

// The oldest step falls off a full stack: its buffers take the new one.
// False when nothing may be recorded.
bool PushStep(uint32_t mask, cStack stack) {
  const int levels = EditStage().m_iUndoCount;
  if (levels <= 0 || StageEdit().m_bTestPlay) return false;
  stack.RotateRight(levels);
  VecAt(stack.masks, 0) = mask;
  const cLayers slot = stack.Slot(0);
  const cLayers present = PresentLayers();
  cSlotCells& held = stack.Cells(0);
  ForEachLayer(mask, [&](auto layer, auto cells) { Snapshot(*(slot.*layer), held.*cells, *(present.*layer)); });
  if (stack.count < levels) ++stack.count;
  return true;
}

// Moves the newest step of `from` back into the stage; the present state
// of its layers goes to `to`, whose newest slot then lists what is occupied
// now.
void StepBack(cStack from, cStack to) {
  if (EditStage().m_iUndoCount <= 0 || from.count <= 0) return;
  const uint32_t mask = VecAt(from.masks, 0);
  cSlotCells scanned;
  const cSlotCells* occupied = &scanned;
  const cLayers present = PresentLayers();
  if (PushStep(mask, to)) {
    occupied = &to.Cells(0);
  } else {
    ForEachLayer(mask, [&](auto layer, auto cells) {
      ScanOccupied(*(present.*layer), [&](int i) { (scanned.*cells).push_back(i); });
    });
  }
  const cLayers slot = from.Slot(0);
  const cSlotCells& held = from.Cells(0);
  {
    cStagePaletteScope scope(EditStage());
    ForEachLayer(mask, [&](auto layer, auto cells) {
      Restore(*(present.*layer), occupied->*cells, *(slot.*layer), held.*cells);
    });
  }
  // Only the restored cells can hold players when the character layer came
  // back; otherwise the whole layer is looked at.
  if (mask & kLayerChara) {
    EditStage().KeepLastPlayer(held.chara);
  } else {
    EditStage().RemoveSurplusPlayers();
  }
  from.RotateLeft(from.count);
  --from.count;
}

// A slot cell is only read when a copy made it occupied, and such a copy
// brings its own inherit flags; leaving them out of the blank keeps an empty
// slot at the size of the records alone.
template <class T>
void AllocSlots(std::vector<std::vector<T>>& slots, int level, size_t cells) {
  T blank;
  blank.m_bbInherit.clear();
  VecAt(slots, level).assign(cells, blank);
}

// Full room for every list, so that recording never allocates.
void ReserveCells(std::vector<cSlotCells>& slots, int level, size_t cells) {
  cSlotCells& held = VecAt(slots, level);
  for (std::vector<int32_t>* list : {&held.block, &held.chara, &held.item}) {
    list->clear();
    list->reserve(cells);
  }
}

void AllocAllSlots(int levels, size_t cells) {
  cStageEdit& e = StageEdit();
  e.m_vecUndoBlock.resize(static_cast<size_t>(levels));
  e.m_vecUndoChara.resize(static_cast<size_t>(levels));
  e.m_vecUndoItem.resize(static_cast<size_t>(levels));
  e.m_vecRedoBlock.resize(static_cast<size_t>(levels));
  e.m_vecRedoChara.resize(static_cast<size_t>(levels));
  e.m_vecRedoItem.resize(static_cast<size_t>(levels));
  e.m_vecUndoMask.assign(static_cast<size_t>(levels), 0);
  e.m_vecRedoMask.assign(static_cast<size_t>(levels), 0);
  e.m_vecUndoCells.resize(static_cast<size_t>(levels));
  e.m_vecRedoCells.resize(static_cast<size_t>(levels));
  for (int level = 0; level < levels; ++level) {
    AllocSlots(e.m_vecUndoBlock, level, cells);
    AllocSlots(e.m_vecUndoChara, level, cells);
    AllocSlots(e.m_vecUndoItem, level, cells);
    AllocSlots(e.m_vecRedoBlock, level, cells);
    AllocSlots(e.m_vecRedoChara, level, cells);
    AllocSlots(e.m_vecRedoItem, level, cells);
    ReserveCells(e.m_vecUndoCells, level, cells);
    ReserveCells(e.m_vecRedoCells, level, cells);
  }
}

}  // namespace

uint64_t EstimateStep(int width, int height) {
  const uint64_t pitch = uint64_t{1} << CalcPitchShift(width);
  return pitch * static_cast<uint64_t>(height < 0 ? 0 : height) * kBytesPerCell;
}

void ClearHistory() {
  cStageEdit& e = StageEdit();
  for (auto* slots : {&e.m_vecUndoBlock, &e.m_vecRedoBlock}) std::vector<std::vector<cEdBlock>>().swap(*slots);
  for (auto* slots : {&e.m_vecUndoChara, &e.m_vecRedoChara}) std::vector<std::vector<cEdChara>>().swap(*slots);
  for (auto* slots : {&e.m_vecUndoItem, &e.m_vecRedoItem}) std::vector<std::vector<cEdItem>>().swap(*slots);
  std::vector<uint32_t>().swap(e.m_vecUndoMask);
  std::vector<uint32_t>().swap(e.m_vecRedoMask);
  std::vector<cSlotCells>().swap(e.m_vecUndoCells);
  std::vector<cSlotCells>().swap(e.m_vecRedoCells);
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
  try {
    AllocAllSlots(levels, static_cast<size_t>(pitch) * static_cast<size_t>(height < 0 ? 0 : height));
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
  PushStep(mask, UndoStack());
  StageEdit().m_iRedoNum = 0;
  CallHook(StageHooks().refreshUndoButtons);
}

void Undo() { StepBack(UndoStack(), RedoStack()); }
void Redo() { StepBack(RedoStack(), UndoStack()); }

bool CanUndo() { return EditStage().m_iUndoCount > 0 && StageEdit().m_iUndoNum > 0; }
bool CanRedo() { return EditStage().m_iUndoCount > 0 && StageEdit().m_iRedoNum > 0; }

}  // namespace velmora
