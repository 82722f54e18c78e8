#include "ui/database/AnimePreviewPlayer.h"

#include "graphics/AnimeRunner.h"
#include "ui/controls/Picture.h"
#include "ui/framework/Dialog.h"
#include "ui/framework/Sheet.h"
#include "ui/palette/SurfaceImage.h"

namespace velmora {

void ShowPreviewPicture(cDialog& dialog, int pictureId, cSurface& surface, const cObjectLook& look) {
  auto* picture = dialog.FindControlOf<cPicture>(pictureId);
  if (!picture) return;
  DrawAnimePreview(surface, look);
  picture->Show(ToImage(surface));
}

bool cAnimePreviewPlayer::IsCurrent(const cDialog& page) {
  const cSheet* sheet = page.Sheet();
  return page.IsOpen() && sheet && sheet->CurrentPage() == &page;
}

bool cAnimePreviewPlayer::IsOnShow(const cDialog& page) {
  return IsCurrent(page) && page.Sheet()->Window()->isVisible() && !page.Sheet()->Window()->isMinimized();
}

void cAnimePreviewPlayer::Play(cDialog& page, const cEdAnime& sample, const std::vector<cEdAnimeFrame>& frames,
                               int shift) {
  if (!IsCurrent(page)) return;
  AnimeRunner().Assign({PreviewPattern(frames)});
  Show(page, sample, shift);
}

void cAnimePreviewPlayer::Show(cDialog& page, const cEdAnime& sample, int shift) {
  m_sample.m_cSampleKind = sample.m_cSampleKind;
  m_sample.m_iSampleNo = sample.m_iSampleNo;
  m_sample.m_iSampleCell = sample.m_iSampleCell;
  m_nShift = shift;
  if (IsCurrent(page)) Draw(page, AnimeRunner().Peek());
}

void cAnimePreviewPlayer::Tick(cDialog& page) {
  if (IsOnShow(page)) Draw(page, AnimeRunner().Tick());
}

void cAnimePreviewPlayer::Draw(cDialog& page, int32_t value) {
  ShowPreviewPicture(page, m_nPictureId, m_surface, AnimePreviewLook(m_sample, value, m_nShift));
}

}  // namespace velmora
