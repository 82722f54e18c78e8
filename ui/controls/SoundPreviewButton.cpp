#include "ui/controls/SoundPreviewButton.h"

#include "ui/controls/Combo.h"
#include "ui/framework/Dialog.h"

namespace velmora {

cSoundPreviewButton::cSoundPreviewButton(cDialog& parent, QAbstractButton* button, const cSoundPreviewDesc& desc)
    : cControl(eControlKind::Button, desc.id, parent, button), m_desc(desc) {
  Listen(button, &QAbstractButton::clicked, [this] { PlayShownRow(); });
}

void cSoundPreviewButton::PlayShownRow() {
  constexpr int kFullVolume = 100;
  if (m_desc.path) {
    m_preview.PlayFile(m_desc.list, *m_desc.path, m_desc.volume ? *m_desc.volume : kFullVolume);
  } else if (const cCombo* combo = Parent().FindControlOf<cCombo>(m_desc.comboId)) {
    m_preview.Play(m_desc.list, combo->SelectedValue());
  }
}

}  // namespace velmora
