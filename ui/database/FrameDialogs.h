#pragma once
#include "graphics/Surface.h"
#include "project/AnimeRecords.h"
#include "project/EffectRecords.h"
#include "ui/database/FramesDialog.h"

namespace velmora {

// Dialog 221, "アニメパターン": the steps of an animation with the check
// "コマンドを実行する", which stays closed for the slots of an animation set,
// and a preview of the selected step on the animation's sample.
class cAnimePatternDialog : public cFramesDialog<cEdAnimeFrame> {
 public:
  enum { kIdCommand = kIdFrameOwn, kIdPreview };

  // `shift` moves the preview's cell, as a set's flying slots do.
  cAnimePatternDialog(cDialogManager& manager, QWidget* parent, cEdAnime& anime, bool commandAllowed, int shift);

 protected:
  void AfterFrameShown() override;
  void UpdateEnables() override;

 private:
  cEdAnime m_sample;  // only its sample fields are read
  bool m_bCommandAllowed;
  int m_nShift;
  cSurface m_surface;
};

// Dialog 236, "アニメ": the steps of an effect.
class cEffectFramesDialog : public cFramesDialog<cEdEffectFrame> {
 public:
  cEffectFramesDialog(cDialogManager& manager, QWidget* parent, std::vector<cEdEffectFrame>& frames);
};

}  // namespace velmora
