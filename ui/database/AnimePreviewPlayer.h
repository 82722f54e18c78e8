#pragma once
#include <vector>

#include "graphics/AnimePreview.h"
#include "ui/controls/Descriptors.h"

namespace velmora {

class cDialog;

// Draws `look` into the 32 × 32 picture control `pictureId` of a dialog,
// through `surface`.
void ShowPreviewPicture(cDialog& dialog, int pictureId, cSurface& surface, const cObjectLook& look);

// The 32 × 32 preview of an animation on a database page, stepped by the
// page's idle calls through the one process-wide runner. Only the page on
// show ticks and draws; a redraw that is no tick shows the present step.
class cAnimePreviewPlayer {
 public:
  explicit cAnimePreviewPlayer(int pictureId) : m_nPictureId(pictureId) {}

  cFormRow Row() const { return {nullptr, cPictureDesc{m_nPictureId, kAnimePreviewSize, kAnimePreviewSize}}; }

  // Plays `frames` from their first step on `sample`, moved by `shift`.
  void Play(cDialog& page, const cEdAnime& sample, const std::vector<cEdAnimeFrame>& frames, int shift);
  // The sample or the shift changed: the present step shows them.
  void Show(cDialog& page, const cEdAnime& sample, int shift);
  // One idle tick of the page on show.
  void Tick(cDialog& page);
  // The page is the current page of its sheet: the one the runner is for.
  static bool IsCurrent(const cDialog& page);
  // And the sheet is on the screen: the page's idle calls are wanted.
  static bool IsOnShow(const cDialog& page);

 private:
  void Draw(cDialog& page, int32_t value);

  int m_nPictureId;
  cEdAnime m_sample;  // only its sample fields are read
  int m_nShift = 0;
  cSurface m_surface;
};

}  // namespace velmora
