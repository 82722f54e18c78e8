#include "ui/palette/EntryPicture.h"

#include <array>

#include "objects/Block.h"
#include "objects/Chara.h"
#include "objects/Item.h"
#include "ui/surface/CharaBitmaps.h"
#include "ui/surface/FixedBitmaps.h"

namespace velmora {
namespace {

constexpr int kCell = 32;
constexpr int kRowsPerColumn = 15;
constexpr int kShotRowsPerColumn = 30;
constexpr int kShotCell = 16;
// Character pictures shown by blocks and items: a base column from 20 on
// is the other sheet's.
constexpr int kColumnsPerSheet = 20;

// What one picture is: its kind and number, the sheet column a character
// picture starts at, and the facing that picks a mirrored sheet.
struct cPictureRef {
  int kind = 0;
  int number = 0;
  int column = 0;
  int facing = 0;
};

void DrawBlockPicture(cSurface& target, int x, int y, const cPictureRef& ref) {
  const int n = ref.number;
  target.Blt(x, y, kCell, kCell, FixedBitmap(kFixedBlock), kCell * (n / kRowsPerColumn), kCell * (n % kRowsPerColumn), false);
}

void DrawCharaPicture(cSurface& target, int x, int y, const cPictureRef& ref) {
  const int n = ref.number;
  const int sheet = kFixedCharaFirst + 2 * (n / kRowsPerColumn) + ref.facing;
  if (sheet >= kFixedCharaFirst + 2 * kCharaSheetCount) return;
  target.Blt(x, y, kCell, kCell, FixedBitmap(sheet), kCell * ref.column, kCell * (n % kRowsPerColumn), false);
}

void DrawItemPicture(cSurface& target, int x, int y, const cPictureRef& ref) {
  const int n = ref.number;
  target.Blt(x, y, kCell, kCell, FixedBitmap(kFixedItem), 2 * kCell * (n / kRowsPerColumn), kCell * (n % kRowsPerColumn), false);
}

void DrawShotPicture(cSurface& target, int x, int y, const cPictureRef& ref) {
  const int n = ref.number;
  const cSurface& sheet = FixedBitmap(ref.facing ? kFixedShotMirrored : kFixedShot);
  target.Blt(x + 8, y + 8, kShotCell, kShotCell, sheet, kCell * (n / kShotRowsPerColumn), kShotCell * (n % kShotRowsPerColumn), false);
}

void DrawOwnBitmap(cSurface& target, int x, int y, const cPictureRef& ref) {
  const std::vector<cCharaBitmapPair>& bitmaps = CharaBitmaps();
  if (ref.number < 0 || static_cast<size_t>(ref.number) >= bitmaps.size()) return;
  const cCharaBitmapPair& pair = bitmaps[static_cast<size_t>(ref.number)];
  const cSurface& sheet = ref.facing ? pair.second : pair.first;
  const int columns = sheet.Width() / kCell;
  if (columns <= 0) return;
  target.Blt(x, y, kCell, kCell, sheet, kCell * (ref.column % columns), kCell * (ref.column / columns), false);
}

using cPictureDraw = void (*)(cSurface&, int, int, const cPictureRef&);
constexpr std::array<cPictureDraw, 5> kPictureDraws = {DrawBlockPicture, DrawCharaPicture, DrawItemPicture,
                                                       DrawShotPicture, DrawOwnBitmap};

void DrawPicture(cSurface& target, int x, int y, const cPictureRef& ref) {
  if (ref.number == 0 || ref.kind < 0 || ref.kind >= static_cast<int>(kPictureDraws.size())) return;
  kPictureDraws[static_cast<size_t>(ref.kind)](target, x, y, ref);
}

void DrawMark(cSurface& target, int x, int y, int markShow, int mark) {
  if (!markShow) return;
  target.Blt(x, y, kCell, kCell, FixedBitmap(kFixedMark), kCell * (mark / kRowsPerColumn), kCell * (mark % kRowsPerColumn), false);
}

// Blocks and items that show a character picture take their base column
// from the frame field.
cPictureRef FramedPicture(int kind, int number, int frame) {
  cPictureRef ref{kind, number, frame, 0};
  if (ref.column >= kColumnsPerSheet) {
    ref.column -= kColumnsPerSheet;
    ref.facing = 1;
  }
  return ref;
}

}  // namespace

void DrawEntry(cSurface& target, int x, int y, const cEdBlock& block) {
  if (block.m_nGraphicNo == 0) return;
  DrawPicture(target, x, y, FramedPicture(block.m_nGraphicKind, block.m_nGraphicNo, block.m_nGraphicFrame));
  DrawMark(target, x, y, block.m_nMarkShow, block.m_nMarkNo);
}

void DrawEntry(cSurface& target, int x, int y, const cEdChara& chara) {
  if (chara.m_nGraphicNo == 0) return;
  if (chara.m_nAnimeSet >= 0) {
    DrawPicture(target, x, y, {chara.m_nGraphicKind, chara.m_nGraphicNo, chara.m_nGraphicShift, chara.m_bFaceRight ? 1 : 0});
  }
  DrawMark(target, x, y, chara.m_nMarkShow, chara.m_nMarkNo);
}

void DrawEntry(cSurface& target, int x, int y, const cEdItem& item) {
  if (item.m_nGraphicNo == 0) return;
  DrawPicture(target, x, y, FramedPicture(item.m_nGraphicKind, item.m_nGraphicNo, item.m_nGraphicFrame));
  DrawMark(target, x, y, item.m_nMarkShow, item.m_nMarkNo);
}

}  // namespace velmora
