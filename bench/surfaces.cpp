// Loading the sample project's fixed bitmaps, and the masked copies a full
// stage view makes: 21 x 16 cells in each of three layers, the items at
// half size.
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <string>

#include "ui/surface/FixedBitmaps.h"
#include "ui/surface/PaletteBitmaps.h"
#include "ui/surface/SamplePictures.h"

using namespace velmora;

namespace {

template <class Work>
double AverageMs(int rounds, Work work) {
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < rounds; ++i) work();
  const std::chrono::duration<double, std::milli> spent = std::chrono::steady_clock::now() - start;
  return spent.count() / rounds;
}

void DrawViewCopies(cSurface& view) {
  view.Fill(0);
  for (int y = 0; y < 16; ++y) {
    for (int x = 0; x < 21; ++x) {
      view.Blt(x * 32, y * 32, 32, 32, FixedBitmap(kFixedBlock), (x % 8) * 32, (y % 15) * 32, false);
      view.Blt(x * 32, y * 32, 32, 32, FixedBitmap(kFixedCharaFirst + (x % 2)), (x % 20) * 32, (y % 15) * 32, false);
      view.StretchBltFrom(x * 32 + 16, y * 32, 16, 16, FixedBitmap(kFixedItem), (x % 8) * 64, (y % 15) * 32, 32, 32,
                          false);
    }
  }
  view.Grid(0, 0, 640, 480, 32, 32, 0xFFFFFF);
}

}  // namespace

int main() {
  char folder[] = "/tmp/velmora-bench-XXXXXX";
  if (!::mkdtemp(folder)) return 1;
  std::filesystem::current_path(folder);
  if (!WriteSamplePictures() || !LoadPaletteBitmaps()) return 1;

  const double loadMs = AverageMs(10, [] { LoadFixedBitmaps("bmp\\Back.bmp", "bmp\\WorldBack.bmp"); });
  std::printf("BENCH fixed_bitmaps_load_ms %.3f ms target <= 50\n", loadMs);

  cSurface view;
  view.CreateSurface(640, 480, 32, false);
  const double copiesMs = AverageMs(50, [&] { DrawViewCopies(view); });
  std::printf("BENCH view_copies_ms %.3f ms target <= 2\n", copiesMs);

  FreeFixedBitmaps();
  std::filesystem::current_path("/");
  std::filesystem::remove_all(folder);
  return 0;
}
