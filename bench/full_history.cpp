// The undo history on the heaviest stage there is: 512 x 512 cells, every
// cell of all three layers occupied, nine levels. What an author feels is
// the start of a stroke, each mouse event of it, an undo and a redo; what
// the machine feels is the history's memory.
#include <malloc.h>

#include <cstdio>

#include "FullStage.h"
#include "ThreadClock.h"
#include "platform/HeapPolicy.h"
#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "stage/StageHistory.h"
#include "stage/StageHooks.h"
#include "stage/StageTools.h"

namespace {

using namespace velmora;
using bench::ThreadMs;

constexpr int kSide = 512;
constexpr int kLevels = 9;
constexpr int kMoves = 200;

// Heap in use, large mapped blocks included.
size_t HeapInUse() {
  const struct mallinfo2 info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

void Mouse(int x, int y, eStageAction action) { StageMouse({x, y, eStageButton::Left, action, false}); }

void SetUpFullStage() {
  cStage& stage = EditStage();
  stage.InitDefault();
  stage.SetSize(kSide, kSide, 0, 0);
  stage.m_iUndoCount = kLevels;
  bench::FillLayers(stage);
  StageHooks().freeMemory = [] { return uint64_t{1} << 40; };
  cStageEdit& edit = StageEdit();
  edit.m_iTool = 0;
  edit.m_iLayer = 0;
  edit.m_vecBrushBlock.assign(1, cEdBlock());
  edit.m_vecBrushBlock[0].m_nGraphicNo = 200;
}

// A one-cell pen stroke; the time of its start.
double StrokeAt(int x, int y) {
  const double start = ThreadMs();
  Mouse(x, y, eStageAction::Down);
  const double took = ThreadMs() - start;
  Mouse(x, y, eStageAction::Up);
  return took;
}

}  // namespace

int main() {
  KeepLayersInHeap();
  SetUpFullStage();
  const cStage& stage = EditStage();

  const size_t before = HeapInUse();
  double start = ThreadMs();
  AllocHistory(kLevels, stage.m_nPitch, stage.m_nHeight);
  std::printf("BENCH full_history_alloc_ms %.2f ms target <= 100\n", ThreadMs() - start);

  double strokeStart = 0;
  for (int i = 0; i < kLevels; ++i) strokeStart += StrokeAt(i * 7, i * 5);
  const double bytes = static_cast<double>(HeapInUse() - before);
  std::printf("BENCH full_history_bytes_per_cell %.1f bytes target <= 64\n", bytes / (kSide * kSide));

  // The stack is full from here: each start also lets the oldest step go.
  for (int i = 0; i < kLevels; ++i) strokeStart += StrokeAt(100 + i, 300);
  std::printf("BENCH full_record_step_ms %.3f ms target <= 5\n", strokeStart / (2 * kLevels));

  Mouse(0, 400, eStageAction::Down);
  start = ThreadMs();
  for (int i = 1; i <= kMoves; ++i) Mouse(i, 400 + i / 2, eStageAction::Move);
  std::printf("BENCH full_stroke_event_ms %.4f ms target <= 1\n", (ThreadMs() - start) / kMoves);
  Mouse(kMoves, 500, eStageAction::Up);
  Undo();

  start = ThreadMs();
  Undo();
  std::printf("BENCH full_undo_ms %.3f ms target <= 5\n", ThreadMs() - start);
  start = ThreadMs();
  Redo();
  std::printf("BENCH full_redo_ms %.3f ms target <= 5\n", ThreadMs() - start);
  ClearHistory();
  return 0;
}
