#include "ui/controls/SoundPreviewButton.h"

#include "ui/controls/Combo.h"
#include "ui/controls/EditStr.h"
#include "ui/framework/Dialog.h"

namespace velmora {

cSoundPreviewButton::cSoundPreviewButton(cDialog& parent, QAbstractButton* button, const cSoundPreviewDesc& desc)
    : cControl(eControlKind::Button, desc.id, parent, button), m_desc(desc) {
  Listen(button, &QAbstractButton::clicked, [this] { PlayShownRow(); });
}

void cSoundPreviewButton::PlayShownRow() {
  if (const cEditStr* path = Parent().FindControlOf<cEditStr>(m_desc.pathId)) {
    m_preview.PlaySoundFile(path->Text());
  } else if (const cCombo* combo = Parent().FindControlOf<cCombo>(m_desc.comboId)) {
    m_preview.Play(m_desc.list, combo->SelectedValue());
  }
}

}  // namespace velmora
