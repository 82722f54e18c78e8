#include "graphics/stageview/ObjectDraw.h"

#include <array>

#include "graphics/CharaBitmaps.h"
#include "graphics/FixedBitmaps.h"

namespace velmora {
namespace {

constexpr int kCell = 32;
constexpr int kHalf = 16;
constexpr int kRowsPerColumn = 15;
constexpr int kShotRowsPerColumn = 30;
constexpr int kShotCell = 16;
constexpr int kOtherFacingColumn = 20;

// Where a picture comes from on its sheet, and how it lands in the cell.
struct cSourceCell {
  const cSurface* sheet = nullptr;
  int sx = 0, sy = 0, size = kCell;
};
struct cPlacement {
  int dx, dy, size;  // offset into the cell and drawn size
  bool stretch;
};

// Full and half placement of each picture kind.
struct cKindLayout {
  cPlacement full;
  cPlacement half;
};
constexpr std::array<cKindLayout, kGraphicKindCount> kLayouts = {{
    {{0, 0, kCell, false}, {kHalf, 0, kHalf, true}},          // block
    {{0, 0, kCell, false}, {kHalf, 0, kHalf, true}},          // character
    {{0, 0, kCell, false}, {kHalf, 0, kHalf, false}},         // item, from the mini sheet
    {{8, 8, kShotCell, false}, {20, 4, 8, true}},             // shot
    {{0, 0, kCell, false}, {kHalf, 0, kHalf, true}},          // own bitmap
}};

cSourceCell BlockCell(const cObjectLook& look, bool) {
  return {&FixedBitmap(kFixedBlock), look.number / kRowsPerColumn * kCell, look.number % kRowsPerColumn * kCell};
}

cSourceCell CharaCell(const cObjectLook& look, bool) {
  const int sheet = 2 * (look.number / kRowsPerColumn) + (look.facing ? 1 : 0);
  if (sheet >= 2 * kCharaSheetCount || look.column < 0) return {};
  return {&FixedBitmap(kFixedCharaFirst + sheet), look.column * kCell, look.number % kRowsPerColumn * kCell};
}

cSourceCell ItemCell(const cObjectLook& look, bool half) {
  const int column = look.number / kRowsPerColumn;
  const int row = look.number % kRowsPerColumn;
  if (half) return {&FixedBitmap(kFixedItemMini), column * kCell, row * kHalf, kHalf};
  return {&FixedBitmap(kFixedItem), column * 2 * kCell, row * kCell};
}

cSourceCell ShotCell(const cObjectLook& look, bool) {
  const cSurface& sheet = FixedBitmap(look.facing ? kFixedShotMirrored : kFixedShot);
  return {&sheet, look.number / kShotRowsPerColumn * kCell, look.number % kShotRowsPerColumn * kShotCell, kShotCell};
}

cSourceCell OwnBitmapCell(const cObjectLook& look, bool) {
  std::vector<cCharaBitmapPair>& bitmaps = CharaBitmaps();
  if (look.number >= static_cast<int>(bitmaps.size()) || look.column < 0) return {};
  const cCharaBitmapPair& pair = bitmaps[static_cast<size_t>(look.number)];
  const cSurface& sheet = look.facing ? pair.second : pair.first;
  const int perRow = sheet.Width() / kCell;
  if (perRow <= 0) return {};
  return {&sheet, look.column % perRow * kCell, look.column / perRow * kCell};
}

using cCellFinder = cSourceCell (*)(const cObjectLook&, bool);
constexpr std::array<cCellFinder, kGraphicKindCount> kCellFinders = {BlockCell, CharaCell, ItemCell, ShotCell,
                                                                     OwnBitmapCell};

void Put(cSurface& out, int x, int y, const cSourceCell& from, const cPlacement& place) {
  if (!from.sheet || !from.sheet->IsLoaded()) return;
  if (place.stretch) {
    out.StretchBltFrom(x + place.dx, y + place.dy, place.size, place.size, *from.sheet, from.sx, from.sy, from.size,
                       from.size, false);
  } else {
    out.Blt(x + place.dx, y + place.dy, place.size, place.size, *from.sheet, from.sx, from.sy, false);
  }
}

void DrawMark(cSurface& out, int x, int y, int mark, bool half) {
  const cSourceCell from{&FixedBitmap(kFixedMark), mark / kRowsPerColumn * kCell, mark % kRowsPerColumn * kCell};
  Put(out, x, y, from, half ? cPlacement{kHalf, 0, kHalf, true} : cPlacement{0, 0, kCell, false});
}

// Blocks and items have no facing of their own: a character picture's
// frame chooses it.
cObjectLook FramedLook(int kind, int number, int frame, int markShow, int markNo) {
  cObjectLook look{kind, number, frame, 0, markShow ? markNo : -1};
  if ((kind == kGraphicKindChara || kind == kGraphicKindOwnBmp) && frame >= kOtherFacingColumn) {
    look.column = frame - kOtherFacingColumn;
    look.facing = 1;
  }
  return look;
}

}  // namespace

cObjectLook LookOf(const cEdBlock& block) {
  return FramedLook(block.m_nGraphicKind, block.m_nGraphicNo, block.m_nGraphicFrame, block.m_nMarkShow,
                    block.m_nMarkNo);
}

cObjectLook LookOf(const cEdItem& item) {
  return FramedLook(item.m_nGraphicKind, item.m_nGraphicNo, item.m_nGraphicFrame, item.m_nMarkShow, item.m_nMarkNo);
}

cObjectLook LookOf(const cEdChara& chara, const std::vector<cEdAnimeSet>& animeSets) {
  cObjectLook look{chara.m_nGraphicKind, chara.m_nGraphicNo, chara.m_nGraphicShift, chara.m_bFaceRight ? 1 : 0,
                   chara.m_nMarkShow ? chara.m_nMarkNo : -1};
  if (chara.m_nAnimeSet < 0) {
    look.number = 0;
    return look;
  }
  if (chara.m_nAnimeSet < static_cast<int>(animeSets.size())) {
    const cEdAnimeSet& set = animeSets[static_cast<size_t>(chara.m_nAnimeSet)];
    if (chara.m_nInvincible) look.column += set.m_iInvincibleShift;
    if (chara.m_nBlock) look.column += set.m_iBlockShift;
    if (chara.m_nFly) look.column += set.m_iFlyShift;
  }
  return look;
}

void DrawObject(cSurface& out, int x, int y, const cObjectLook& look, bool half) {
  if (look.number > 0 && look.kind >= 0 && look.kind < kGraphicKindCount) {
    const size_t kind = static_cast<size_t>(look.kind);
    Put(out, x, y, kCellFinders[kind](look, half), half ? kLayouts[kind].half : kLayouts[kind].full);
  }
  if (look.mark >= 0) DrawMark(out, x, y, look.mark, half);
}

}  // namespace velmora
