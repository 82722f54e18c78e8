#include "ui/database/FrameDialogs.h"

#include "graphics/AnimePreview.h"
#include "project/DatabaseRowText.h"
#include "ui/database/AnimePreviewPlayer.h"

namespace velmora {
namespace {

constexpr cFramesDialog<cEdAnimeFrame>::cLimits kAnimeLimits = {299, 1, 9999};
constexpr cFramesDialog<cEdEffectFrame>::cLimits kEffectLimits = {640, 0, 999};

}  // namespace

cAnimePatternDialog::cAnimePatternDialog(cDialogManager& manager, QWidget* parent, cEdAnime& anime,
                                         bool commandAllowed, int shift)
    : cFramesDialog(manager, parent, anime.m_vecFrames, AnimeFrameRowText),
      m_sample(anime),
      m_bCommandAllowed(commandAllowed),
      m_nShift(shift) {
  SetTitle(QString::fromUtf8("アニメパターン"));
  SetLogName("anime pattern");
  SetForm(kAnimeLimits, {{nullptr, cCheckDesc{kIdCommand, &Current().m_bCommand, "コマンドを実行する"}},
                         {nullptr, cPictureDesc{kIdPreview, kAnimePreviewSize, kAnimePreviewSize}}});
}

void cAnimePatternDialog::AfterFrameShown() {
  ShowPreviewPicture(*this, kIdPreview, m_surface, AnimePreviewLook(m_sample, Current().m_iCell, m_nShift));
}

void cAnimePatternDialog::UpdateEnables() { EnableControl(kIdCommand, m_bCommandAllowed); }

cEffectFramesDialog::cEffectFramesDialog(cDialogManager& manager, QWidget* parent,
                                         std::vector<cEdEffectFrame>& frames)
    : cFramesDialog(manager, parent, frames, EffectFrameRowText) {
  SetTitle(QString::fromUtf8("アニメ"));
  SetLogName("effect frames");
  SetForm(kEffectLimits, {});
}

}  // namespace velmora
