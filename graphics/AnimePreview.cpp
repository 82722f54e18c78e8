#include "graphics/AnimePreview.h"

#include "graphics/AnimeRunner.h"
#include "objects/PaletteTables.h"

namespace velmora {

cObjectLook AnimePreviewLook(const cEdAnime& sample, int32_t runnerValue, int shift) {
  const int step = PreviewCell(0, runnerValue) + shift;
  cObjectLook look{sample.m_cSampleKind, sample.m_iSampleNo, 0, 0, -1};
  if (sample.m_cSampleKind == kGraphicKindChara || sample.m_cSampleKind == kGraphicKindOwnBmp) {
    look.column = sample.m_iSampleCell + step;
  } else {
    look.number += step;
  }
  return look;
}

void DrawAnimePreview(cSurface& out, const cObjectLook& look) {
  if (out.Width() != kAnimePreviewSize || out.Height() != kAnimePreviewSize) {
    out.Free();
    if (!out.CreateSurface(kAnimePreviewSize, kAnimePreviewSize, 32, false)) return;
  }
  out.Fill(0);
  DrawObject(out, 0, 0, look, false);
}

}  // namespace velmora
