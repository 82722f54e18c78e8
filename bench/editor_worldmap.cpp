// The world map window's work, without a display, its world numbers drawn
// in the desktop's fonts as the editor draws them: a full repaint of a
// 640 x 480 view over the largest map, every cell a chip and a thousand
// events in view and out, and a chip stroke with a 3 x 3 brush across that
// whole map, one mouse event a cell, from the press that keeps an undo
// state to the last move, each event with the repaint that follows it.
#include <unistd.h>

#include <QApplication>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "ThreadClock.h"
#include "core/EditConfig.h"
#include "graphics/FixedBitmaps.h"
#include "graphics/PaletteBitmaps.h"
#include "graphics/SamplePictures.h"
#include "graphics/worldview/WorldView.h"
#include "project/WorldMapEditor.h"
#include "ui/framework/QtTextRenderer.h"

using namespace velmora;

namespace {

constexpr int kChips = 75;
constexpr int kEvents = 1000;

void FillMap(cEdWorldMap& map) {
  map.SetSize(cEdWorldMap::kMaxWidth, cEdWorldMap::kMaxHeight);
  map.m_vecChips.resize(kChips);
  for (int i = 0; i < kChips; ++i) map.m_vecChips[static_cast<size_t>(i)].m_iGraphic = i;
  for (int y = 0; y < map.m_nHeight; ++y) {
    for (int x = 0; x < map.m_nWidth; ++x) map.SetCell(x, y, (x * 7 + y) % kChips);
  }
  for (int i = 0; i < kEvents; ++i) {
    cEdWorldEvent event;
    event.m_vecPages.resize(3);
    event.m_vecPages[0].m_iWorldNo = i % 999 + 1;
    event.m_vecPages[0].m_iGraphic = i % 20;
    map.PlaceEvent(event, (i * 13) % map.m_nWidth, (i * 7) % map.m_nHeight);
  }
}


// A serpentine over every cell: the press on the first, a move on each other.
double StrokeEventMs(cEdWorldMap& map, cSurface& view) {
  cEdWorldEditState state;
  state.SelectChip(3);
  state.m_iBrushW = state.m_iBrushH = 3;
  const EditConfig config;
  cWorldMapEditor editor(map, state, config);
  int events = 0;
  const double start = bench::ThreadMs();
  editor.Press(0, 0, false);
  for (int y = 0; y < map.m_nHeight; ++y) {
    for (int i = 0; i < map.m_nWidth; ++i) {
      const int x = y % 2 == 0 ? i : map.m_nWidth - 1 - i;
      editor.LeftDrag(x, y);
      RenderWorldView(map, view, std::min(x, 180), std::min(y, 135), WorldCursorFrame(state, x, y));
      ++events;
    }
  }
  return (bench::ThreadMs() - start) / events;
}

}  // namespace

int main(int argc, char** argv) {
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  QApplication application(argc, argv);
  InstallQtTextRenderer();
  char folder[] = "/tmp/velmora-bench-XXXXXX";
  if (!::mkdtemp(folder)) return 1;
  std::filesystem::current_path(folder);
  if (!WriteSamplePictures() || !LoadPaletteBitmaps() || !LoadFixedBitmaps("", "bmp\\WorldBack.bmp")) return 1;

  cEdWorldMap map;
  FillMap(map);
  map.m_bUseBackImage = 1;
  cSurface view;
  if (!view.CreateSurface(640, 480, 32, false)) return 1;
  int scroll = 0;
  const double repaintMs = bench::AverageMs(200, [&] {
    RenderWorldView(map, view, scroll % 180, scroll % 135, {scroll % 180, scroll % 135, 3, 3, 0xFF0080});
    ++scroll;
  });
  std::printf("BENCH worldmap_repaint_ms %.3f ms target <= 2\n", repaintMs);
  std::printf("BENCH worldmap_stroke_event_ms %.3f ms target <= 1\n", StrokeEventMs(map, view));

  FreeFixedBitmaps();
  std::filesystem::current_path("/");
  std::filesystem::remove_all(folder);
  return 0;
}
