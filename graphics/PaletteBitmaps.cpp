#include "graphics/PaletteBitmaps.h"

#include "core/AppControl.h"
#include "core/Log.h"
#include "core/SaveData.h"
#include "core/SystemText.h"
#include "graphics/BitmapFile.h"
#include "graphics/ProjectPalette.h"

namespace velmora {
namespace {

void ReportMissingPalette(const char* name) {
  ErrorBox(SysText("パレットの生成に失敗！\n%s が見つかりません！"), name);
}

}  // namespace

bool LoadPaletteBitmaps() {
  if (!ReadBitmapPalette(ProjectPalette(), kProjectPaletteFile)) {
    ReportMissingPalette(kProjectPaletteFile);
    return false;
  }
  DeriveMaskIndices();
  if (!ReadBitmapPalette(SourcePalette(), kSourcePaletteFile)) {
    ReportMissingPalette(kSourcePaletteFile);
    g_bNoSave = 1;
    AppControl().DestroyMainWindow();
    return false;
  }
  return true;
}

}  // namespace velmora
