#include "graphics/SamplePictures.h"

#include <array>

#include "platform/FileSystem.h"
#include "graphics/BitmapFile.h"
#include "graphics/PaletteBitmaps.h"
#include "graphics/SamplePalette.h"
#include "graphics/SampleSheets.h"

namespace velmora {
namespace {

using cDrawPicture = void (*)(cIndexedPainter&, int);

struct cSamplePicture {
  const char* file;
  int width;
  int height;
  cDrawPicture draw;
  int param;
};

constexpr std::array<cSamplePicture, 24> kPictures = {{
    {"bmp\\Back.bmp", 640, 480, DrawStageBackground, 0},
    {"bmp\\Block.bmp", 256, 480, DrawBlockSheet, 0},
    {"bmp\\Character1.bmp", 640, 480, DrawCharaSheet, 0},
    {"bmp\\Character2.bmp", 640, 480, DrawCharaSheet, 1},
    {"bmp\\Character3.bmp", 640, 480, DrawCharaSheet, 2},
    {"bmp\\Character4.bmp", 640, 480, DrawCharaSheet, 3},
    {"bmp\\Character5.bmp", 640, 480, DrawCharaSheet, 4},
    {"bmp\\Character6.bmp", 640, 480, DrawCharaSheet, 5},
    {"bmp\\Character7.bmp", 640, 480, DrawCharaSheet, 6},
    {"bmp\\Character8.bmp", 640, 480, DrawCharaSheet, 7},
    {"bmp\\Item.bmp", 512, 480, DrawItemSheet, 0},
    {"bmp\\Item_Mini.bmp", 256, 240, DrawMiniItemSheet, 0},
    {"bmp\\Shot.bmp", 128, 480, DrawShotSheet, 0},
    {"bmp\\Mark.bmp", 256, 480, DrawMarkSheet, 0},
    {"bmp\\WorldBack.bmp", 640, 480, DrawWorldBackground, 0},
    {"bmp\\WorldMapChip.bmp", 160, 480, DrawWorldChipSheet, 0},
    {"bmp\\WorldEvent.bmp", 64, 640, DrawWorldEventSheet, 0},
    {"bmp\\Symbol.bmp", 256, 480, DrawSymbolSheet, 0},
    {"bmp\\Accessory.bmp", 256, 480, DrawAccessorySheet, 0},
    {"e_bmp\\ToolBar_Pen.bmp", 80, 16, DrawPenToolbar, 0},
    {"e_bmp\\ToolBar_PltEdit.bmp", 32, 16, DrawPaletteEditToolbar, 0},
    {"e_bmp\\ToolBar_Palette.bmp", 48, 16, DrawPaletteToolbar, 0},
    {"e_bmp\\ToolBar_WorldPalette.bmp", 32, 16, DrawWorldPaletteToolbar, 0},
    {"e_bmp\\ToolBar_TestPlay.bmp", 32, 16, DrawTestPlayToolbar, 0},
}};

constexpr std::array<const char*, 3> kFolders = {"bmp", "bmp\\plt", "e_bmp"};

// Every colour as an 8 x 8 swatch, sixteen to a row.
bool WritePaletteFile(const char* file, const cColourTable& palette) {
  cPixelImage image;
  if (!image.Create(128, 128, 8, palette)) return false;
  cIndexedPainter painter(image);
  for (int i = 0; i < 256; ++i) painter.Rect((i % 16) * 8, (i / 16) * 8, 8, 8, i);
  return WriteBitmap(file, image, palette);
}

bool WritePicture(const cSamplePicture& picture, const cColourTable& palette) {
  cPixelImage image;
  if (!image.Create(picture.width, picture.height, 8, palette)) return false;
  cIndexedPainter painter(image);
  painter.Rect(0, 0, picture.width, picture.height, 0);
  picture.draw(painter, picture.param);
  return WriteBitmap(picture.file, image, palette);
}

}  // namespace

bool WriteSamplePictures() {
  for (const char* folder : kFolders) {
    if (!IsDirectory(folder)) MakeDirectory(folder);
  }
  const cColourTable palette = SamplePalette();
  if (!WritePaletteFile(kProjectPaletteFile, palette) || !WritePaletteFile(kSourcePaletteFile, palette)) return false;
  for (const cSamplePicture& picture : kPictures) {
    if (!WritePicture(picture, palette)) return false;
  }
  return true;
}

bool WriteSampleCharaBitmap(const std::string& stored, int number, int frames) {
  const cColourTable palette = SamplePalette();
  cPixelImage image;
  if (frames < 1 || !image.Create(64, 32 * frames, 8, palette)) return false;
  cIndexedPainter painter(image);
  painter.Rect(0, 0, 64, 32 * frames, 0);
  for (int frame = 0; frame < frames; ++frame) {
    DrawCharacter(painter, 0, 32 * frame, number, frame, false);
    DrawCharacter(painter, 32, 32 * frame, number, frame, true);
  }
  return WriteBitmap(stored, image, palette);
}

}  // namespace velmora
