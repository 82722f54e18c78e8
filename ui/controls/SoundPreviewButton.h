#pragma once
#include <QAbstractButton>

#include "sound/SoundPreview.h"
#include "ui/controls/Control.h"
#include "ui/controls/Descriptors.h"

namespace velmora {

// The "再生" button of a cSoundPreviewDesc. It lives as long as the
// dialog's window: the dialog's close destroys it, and that stops the
// sound or music it started.
class cSoundPreviewButton : public cControl {
 public:
  cSoundPreviewButton(cDialog& parent, QAbstractButton* button, const cSoundPreviewDesc& desc);

 private:
  void PlayShownRow();
  int ShownVolume() const;

  cSoundPreviewDesc m_desc;
  cSoundPreview m_preview;
};

}  // namespace velmora
