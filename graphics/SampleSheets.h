#pragma once
#include "graphics/IndexedPainter.h"

namespace velmora {

// The pictures of the sample project, each drawn in the sample palette's
// indices onto a transparent (index 0) image of its sheet's size. `param`
// is the sheet number where a file is one of a series.

// Stage pictures: numbered cells in the layout the stage view reads them.
void DrawBlockSheet(cIndexedPainter& painter, int param);
void DrawCharaSheet(cIndexedPainter& painter, int sheet);
void DrawItemSheet(cIndexedPainter& painter, int param);
void DrawMiniItemSheet(cIndexedPainter& painter, int param);
void DrawShotSheet(cIndexedPainter& painter, int param);
void DrawMarkSheet(cIndexedPainter& painter, int param);

// World map and decoration pictures.
void DrawStageBackground(cIndexedPainter& painter, int param);
void DrawWorldBackground(cIndexedPainter& painter, int param);
void DrawWorldChipSheet(cIndexedPainter& painter, int param);
void DrawWorldEventSheet(cIndexedPainter& painter, int param);
void DrawSymbolSheet(cIndexedPainter& painter, int param);
void DrawAccessorySheet(cIndexedPainter& painter, int param);

// The tool bar strips of the editor, 16 x 16 images side by side.
void DrawPenToolbar(cIndexedPainter& painter, int param);
void DrawPaletteEditToolbar(cIndexedPainter& painter, int param);
void DrawPaletteToolbar(cIndexedPainter& painter, int param);
void DrawWorldPaletteToolbar(cIndexedPainter& painter, int param);
void DrawTestPlayToolbar(cIndexedPainter& painter, int param);

// One character in a 32 x 32 cell whose top left is (x, y); `frame` moves
// its feet.
void DrawCharacter(cIndexedPainter& painter, int x, int y, int number, int frame, bool facingRight);

}  // namespace velmora
