// The stage window's repaint: a full 640 x 480 view of a stage whose three
// layers are occupied in every cell, drawn from the sample pictures.
#include <unistd.h>

#include <cstdio>
#include <filesystem>

#include "FullStage.h"
#include "ThreadClock.h"
#include "stage/Stage.h"
#include "graphics/stageview/StageView.h"
#include "graphics/FixedBitmaps.h"
#include "graphics/PaletteBitmaps.h"
#include "graphics/SamplePictures.h"

using namespace velmora;

int main() {
  char folder[] = "/tmp/velmora-bench-XXXXXX";
  if (!::mkdtemp(folder)) return 1;
  std::filesystem::current_path(folder);
  if (!WriteSamplePictures() || !LoadPaletteBitmaps()) return 1;

  const double loadMs = bench::AverageMs(10, [] { LoadFixedBitmaps("bmp\\Back.bmp", "bmp\\WorldBack.bmp"); });
  std::printf("BENCH fixed_bitmaps_load_ms %.3f ms target <= 50\n", loadMs);

  cStage stage;
  stage.InitDefault();
  stage.SetSize(64, 32, 0, 0);
  bench::FillLayers(stage);
  stage.m_bScrollMinX = stage.m_bScrollMaxX = stage.m_bScrollMinY = stage.m_bScrollMaxY = 1;
  stage.m_iScrollMaxX = 30;
  stage.m_iScrollMaxY = 20;

  cSurface view;
  if (!view.CreateSurface(640, 480, 32, false)) return 1;
  const cViewOptions options;
  int scroll = 0;
  const double renderMs = bench::AverageMs(200, [&] {
    RenderStageView(stage, view, scroll % 40, scroll % 16, options);
    ++scroll;
  });
  std::printf("BENCH view_render_ms %.3f ms target <= 2\n", renderMs);

  FreeFixedBitmaps();
  std::filesystem::current_path("/");
  std::filesystem::remove_all(folder);
  return 0;
}
