// The memory of one undo snapshot and the speed of recording, undoing and
// filling on the largest stage.
#include <malloc.h>

#include <chrono>
#include <cstdio>
#include <vector>

#include "platform/HeapPolicy.h"
#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "stage/StageFill.h"
#include "stage/StageHistory.h"
#include "stage/StageHooks.h"

namespace {

using namespace velmora;

constexpr int kSide = 512;
constexpr int kCells = kSide * kSide;

double MsSince(std::chrono::steady_clock::time_point since) {
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - since).count();
}

// Heap in use, large mapped blocks included.
size_t HeapInUse() {
  const struct mallinfo2 info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

void SetUpStage(int levels) {
  cStage& stage = EditStage();
  stage.InitDefault();
  stage.SetSize(kSide, kSide, 0, 0);
  stage.m_iUndoCount = levels;
  StageHooks().freeMemory = [] { return uint64_t{1} << 40; };
  AllocHistory(levels, stage.m_nPitch, stage.m_nHeight);
}

// Heap growth of one history level, which holds an undo and a redo snapshot
// of all three layers: the records themselves and what they own.
double SnapshotBytesPerCell() {
  SetUpStage(0);
  const cStage& stage = EditStage();
  const size_t before = HeapInUse();
  AllocHistory(1, stage.m_nPitch, stage.m_nHeight);
  const size_t grown = HeapInUse() - before;
  ClearHistory();
  return static_cast<double>(grown) / (2.0 * kCells);
}

// One cell in a hundred holds a block, a character and an item.
void OccupyOnePercent() {
  cStage& stage = EditStage();
  for (int i = 0; i < kCells; i += 100) {
    stage.m_vecBlockCell[static_cast<size_t>(i)].m_nGraphicNo = 1;
    stage.m_vecCharaCell[static_cast<size_t>(i)].m_nGraphicNo = 1;
    stage.m_vecItemCell[static_cast<size_t>(i)].m_nGraphicNo = 1;
  }
}

}  // namespace

int main() {
  // The process is set up as the editor sets itself up.
  KeepLayersInHeap();
  std::printf("BENCH stage_bytes_per_cell %.1f bytes target <= 580\n", SnapshotBytesPerCell());

  SetUpStage(3);
  OccupyOnePercent();
  for (int i = 0; i < 3; ++i) RecordStep(kLayerAll);
  auto start = std::chrono::steady_clock::now();
  RecordStep(kLayerAll);
  std::printf("BENCH undo_record_ms %.2f ms target <= 10\n", MsSince(start));
  start = std::chrono::steady_clock::now();
  Undo();
  std::printf("BENCH undo_undo_ms %.2f ms target <= 10\n", MsSince(start));

  ClearHistory();
  SetUpStage(0);
  StageEdit().m_vecBrushBlock.assign(1, cEdBlock());
  StageEdit().m_vecBrushBlock[0].m_nGraphicNo = 1;
  start = std::chrono::steady_clock::now();
  FillAt(0, 0);
  std::printf("BENCH fill_512_ms %.2f ms target <= 100\n", MsSince(start));
  return 0;
}
