#include "graphics/FixedBitmaps.h"

#include <algorithm>
#include <array>

#include "core/Log.h"

namespace velmora {
namespace {

struct cFixedRow {
  const char* file;
  int cellWidth;  // above 0: the file again, each cell column mirrored
};

constexpr std::array<cFixedRow, kFixedBitmapCount> kFixedRows = {{
    {"bmp\\Back.bmp", 0},
    {"bmp\\Block.bmp", 0},
    {"bmp\\Character1.bmp", 0}, {"bmp\\Character1.bmp", 32},
    {"bmp\\Character2.bmp", 0}, {"bmp\\Character2.bmp", 32},
    {"bmp\\Character3.bmp", 0}, {"bmp\\Character3.bmp", 32},
    {"bmp\\Character4.bmp", 0}, {"bmp\\Character4.bmp", 32},
    {"bmp\\Character5.bmp", 0}, {"bmp\\Character5.bmp", 32},
    {"bmp\\Character6.bmp", 0}, {"bmp\\Character6.bmp", 32},
    {"bmp\\Character7.bmp", 0}, {"bmp\\Character7.bmp", 32},
    {"bmp\\Character8.bmp", 0}, {"bmp\\Character8.bmp", 32},
    {"bmp\\Item.bmp", 0},
    {"bmp\\Item_Mini.bmp", 0},
    {"bmp\\Shot.bmp", 0},
    {"bmp\\Shot.bmp", 16},
    {"bmp\\Mark.bmp", 0},
    {"bmp\\WorldBack.bmp", 0},
    {"bmp\\WorldMapChip.bmp", 0},
    {"bmp\\WorldEvent.bmp", 0},
    {"bmp\\Symbol.bmp", 0},
    {"bmp\\Accessory.bmp", 0},
    {kBlankSurfaceMarker, 0}, {kBlankSurfaceMarker, 0}, {kBlankSurfaceMarker, 0}, {kBlankSurfaceMarker, 0},
    {kBlankSurfaceMarker, 0},
}};

bool IsBackground(int index) { return index == kFixedBack || index == kFixedWorldBack; }

std::array<cSurfaceSpec, kFixedBitmapCount> MakeLoadRequests() {
  std::array<cSurfaceSpec, kFixedBitmapCount> requests;
  for (int i = 0; i < kFixedBitmapCount; ++i) {
    cSurfaceSpec& request = requests[static_cast<size_t>(i)];
    request.name = kFixedRows[static_cast<size_t>(i)].file;
    request.cellWidth = kFixedRows[static_cast<size_t>(i)].cellWidth;
    request.bMask = IsBackground(i) ? 0 : 1;
    if (i >= kSheetBlock) {
      request.blankWidth = kComposedSheetWidth;
      request.blankHeight = kComposedSheetHeight;
    }
  }
  return requests;
}

std::array<cSurfaceSpec, kFixedBitmapCount> g_loadRequests = MakeLoadRequests();
std::array<cSurface, kFixedBitmapCount> g_surfaces;

cSurface& At(int index) { return g_surfaces[static_cast<size_t>(std::clamp(index, 0, kFixedBitmapCount - 1))]; }

// A background that can't be read is passed over; only a lack of memory
// stops.
bool LoadBackground(int index) {
  const cSurfaceSpec& request = g_loadRequests[static_cast<size_t>(index)];
  At(index).Free();
  if (!request.name.empty() && At(index).TryLoad(request) == eSurfaceLoad::OutOfMemory) {
    StopOutOfMemory();
    return false;
  }
  return true;
}

void ComposeSheets() {
  for (int sheet = kSheetBlock; sheet <= kSheetMark; ++sheet) At(sheet).Fill(0);
  const cSurface& blocks = At(kFixedBlock);
  At(kSheetBlock).Blt(0, 0, blocks.Width(), blocks.Height(), blocks, 0, 0, false);
  for (int i = 0; i < kCharaSheetCount; ++i) {
    const cSurface& chara = At(kFixedCharaFirst + 2 * i);
    At(kSheetChara).Blt(32 * i, 0, 32, chara.Height(), chara, 0, 0, false);
  }
  const cSurface& items = At(kFixedItem);
  for (int i = 0; i < 8; ++i) At(kSheetItem).Blt(32 * i, 0, 32, items.Height(), items, 64 * i, 0, false);
  const cSurface& shots = At(kFixedShot);
  for (int i = 0; i < 4; ++i) {
    for (int j = 0; j < 30; ++j) {
      At(kSheetShot).Blt(64 * i + 32 * (j / 15) + 8, 32 * (j % 15) + 8, 16, 16, shots, 32 * i, 16 * j, false);
    }
  }
  const cSurface& marks = At(kFixedMark);
  At(kSheetMark).Blt(0, 0, marks.Width(), marks.Height(), marks, 0, 0, false);
}

}  // namespace

const cSurfaceSpec& FixedBitmapRequest(int index) {
  return g_loadRequests[static_cast<size_t>(std::clamp(index, 0, kFixedBitmapCount - 1))];
}

cSurface& FixedBitmap(int index) { return At(index); }

bool LoadFixedBitmaps(const std::string& stageBackPath, const std::string& worldBackPath) {
  g_loadRequests[kFixedBack].name = stageBackPath;
  g_loadRequests[kFixedWorldBack].name = worldBackPath;
  for (int i = 0; i < kFixedBitmapCount; ++i) {
    if (!(IsBackground(i) ? LoadBackground(i) : At(i).Load(g_loadRequests[static_cast<size_t>(i)]))) return false;
  }
  ComposeSheets();
  return true;
}

void LoadWorldBackground(const std::string& path) {
  if (path.empty()) return;
  g_loadRequests[kFixedWorldBack].name = path;
  LoadBackground(kFixedWorldBack);
}

bool LoadWorldSheets() {
  return At(kFixedWorldChip).Load(g_loadRequests[kFixedWorldChip]) &&
         At(kFixedWorldEvent).Load(g_loadRequests[kFixedWorldEvent]);
}

void FreeFixedBitmaps() {
  for (cSurface& surface : g_surfaces) surface.Free();
}

std::vector<std::string> FixedBitmapFiles() {
  std::vector<std::string> files;
  for (const cFixedRow& row : kFixedRows) {
    const std::string name = row.file;
    if (name != kBlankSurfaceMarker && std::find(files.begin(), files.end(), name) == files.end()) {
      files.push_back(name);
    }
  }
  return files;
}

}  // namespace velmora
