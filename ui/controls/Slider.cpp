#include "ui/controls/Slider.h"

#include "ui/controls/EditVal.h"
#include "ui/framework/Commands.h"
#include "ui/framework/Dialog.h"

namespace velmora {

cSlider::cSlider(cDialog& parent, QSlider* slider, const cSliderDesc& desc)
    : cControl(eControlKind::Slider, desc.id, parent, slider),
      m_pSlider(slider),
      m_field(desc.field),
      m_nEditId(desc.editId) {
  slider->setRange(desc.minimum, desc.maximum);
  if (desc.pageStep > 0) slider->setPageStep(desc.pageStep);
  Listen(slider, &QSlider::actionTriggered, [this](int action) { Parent().Scroll(m_pSlider, action); });
  Refresh();
}

void cSlider::ShowInEdit(int position) {
  if (m_nEditId == 0) return;
  if (auto* edit = dynamic_cast<cEditVal*>(Parent().FindControl(m_nEditId))) edit->SetValue(position);
}

void cSlider::Enable(bool enable) {
  cControl::Enable(enable);
  if (m_nEditId == 0) return;
  if (cControl* edit = Parent().FindControl(m_nEditId)) edit->Enable(enable);
}

void cSlider::Refresh() {
  if (!m_field.IsBound()) return;
  m_pSlider->setValue(static_cast<int>(m_field.Get()));
  ShowInEdit(m_pSlider->value());
}

void cSlider::Commit() {
  if (Updating() || !m_field.IsBound()) return;
  m_field.Set(m_pSlider->sliderPosition());
}

bool cSlider::OnScroll(QObject* bar, int /*action*/) {
  if (bar != m_pSlider) return false;
  ShowInEdit(m_pSlider->sliderPosition());
  SendCommand(kNoticeClicked);
  return true;
}

}  // namespace velmora
