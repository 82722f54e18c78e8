#include "graphics/CharaBitmaps.h"

#include "core/Log.h"
#include "core/SystemText.h"

namespace velmora {
namespace {

std::vector<cCharaBitmapPair> g_charaBitmaps;

eSurfaceLoad LoadPair(const cCharaBitmapSource& source, cCharaBitmapPair& pair) {
  cSurface sheet;
  cSurfaceSpec request;
  request.name = source.path;
  request.bMask = 1;
  const eSurfaceLoad result = sheet.TryLoad(request);
  if (result != eSurfaceLoad::Ok) return result;
  const int cell = source.cellSize > 0 ? source.cellSize : 32;
  bool made = pair.first.CopyRegionOf(sheet, 0, 0, cell, sheet.Height()) &&
              pair.second.CopyRegionOf(sheet, cell, 0, cell, sheet.Height());
  return made ? eSurfaceLoad::Ok : eSurfaceLoad::OutOfMemory;
}

}  // namespace

std::vector<cCharaBitmapPair>& CharaBitmaps() { return g_charaBitmaps; }

bool LoadCharaBitmaps(const std::vector<cCharaBitmapSource>& list, bool stopAtFirstFailure) {
  g_charaBitmaps.clear();
  g_charaBitmaps.resize(list.size());
  bool allLoaded = true;
  for (size_t i = 1; i < list.size(); ++i) {
    if (list[i].path.empty()) continue;
    const eSurfaceLoad result = LoadPair(list[i], g_charaBitmaps[i]);
    if (result == eSurfaceLoad::Ok) continue;
    if (result == eSurfaceLoad::OutOfMemory) {
      StopOutOfMemory();
      return false;
    }
    ErrorBox(SysText("%s の読み込みに失敗！"), list[i].path.c_str());
    allLoaded = false;
    if (stopAtFirstFailure) break;
  }
  return allLoaded;
}

}  // namespace velmora
