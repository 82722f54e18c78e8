#include "objects/GraphicRule.h"

#include <algorithm>

#include "objects/PaletteTables.h"
#include "objects/RefSizes.h"

namespace velmora {
namespace {

constexpr int kSheetPictures = 119;
constexpr int kCharaFrames = 40;
constexpr int kOwnBmpFrames = 240;

}  // namespace

cValueRange GraphicNumberRange(int kind) {
  if (kind != kGraphicKindOwnBmp) return {1, kSheetPictures};
  return {1, std::max(RefSizes().DbListSize(eDbList::BmpCharaExc) - 1, 1)};
}

bool HasFrame(int kind) { return kind == kGraphicKindChara || kind == kGraphicKindOwnBmp; }

cValueRange GraphicFrameRange(int kind) {
  if (kind == kGraphicKindChara) return {0, kCharaFrames - 1};
  if (kind == kGraphicKindOwnBmp) return {0, kOwnBmpFrames - 1};
  return {0, 0};
}

bool CanPickGraphic(int kind) { return kind != kGraphicKindOwnBmp; }

}  // namespace velmora
