#include "ui/controls/Button.h"

#include "ui/framework/Commands.h"

namespace velmora {

cButton::cButton(cDialog& parent, QAbstractButton* button, const cButtonDesc& desc)
    : cControl(eControlKind::Button, desc.id, parent, button) {
  Listen(button, &QAbstractButton::clicked, [this] { SendCommand(kNoticeClicked); });
}

cCheck::cCheck(cDialog& parent, QAbstractButton* box, const cCheckDesc& desc)
    : cControl(eControlKind::Check, desc.id, parent, box), m_pBox(box), m_field(desc.field) {
  box->setCheckable(true);
  Listen(box, &QAbstractButton::clicked, [this] { SendCommand(kNoticeClicked); });
  Refresh();
}

void cCheck::Refresh() {
  if (m_field.IsBound()) m_pBox->setChecked(m_field.Get() != 0);
}

void cCheck::Commit() {
  if (Updating() || !m_field.IsBound()) return;
  m_field.Set(IsChecked() ? 1 : 0);
}

bool cCheck::IsChecked() const { return m_pBox->isChecked(); }

void cCheck::SetChecked(bool checked) { m_pBox->setChecked(checked); }

}  // namespace velmora
