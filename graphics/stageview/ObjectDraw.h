#pragma once
#include <vector>

#include "objects/Block.h"
#include "objects/Chara.h"
#include "objects/Item.h"
#include "objects/PaletteTables.h"
#include "project/AnimeRecords.h"
#include "graphics/Surface.h"

namespace velmora {

// What one placed object shows: a picture, and a mark on top.
struct cObjectLook {
  int kind = kGraphicKindBlock;
  int number = 0;  // 0 shows no picture
  int column = 0;  // cell column on character sheets and own bitmaps
  int facing = 0;  // 1 picks the other facing's sheet
  int mark = -1;   // below 0: no mark
};

// A block or item showing a character picture uses its frame as the
// column; frames from 20 on face the other way.
cObjectLook LookOf(const cEdBlock& block);
cObjectLook LookOf(const cEdItem& item);
// A character's column moves by the shifts of its animation set for each
// state it is placed in; with no animation set it shows only its mark.
cObjectLook LookOf(const cEdChara& chara, const std::vector<cEdAnimeSet>& animeSets);

// Draws the look's picture and mark with their top left cell at (x, y)
// in dots, from the fixed bitmaps and the characters' own bitmaps. Half
// size puts a 16-dot picture in the top right quarter of the cell.
void DrawObject(cSurface& out, int x, int y, const cObjectLook& look, bool half);

}  // namespace velmora
