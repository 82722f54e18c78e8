#include "ui/controls/Combo.h"

#include "ui/framework/Commands.h"
#include "ui/framework/QtText.h"

namespace velmora {
namespace {

int FieldBytes(eValueType type) {
  switch (type) {
    case eValueType::Char:
    case eValueType::UChar: return 1;
    case eValueType::Short:
    case eValueType::UShort: return 2;
    default: return 4;
  }
}

}  // namespace

cCombo::cCombo(cDialog& parent, QComboBox* box, const cComboDesc& desc)
    : cControl(eControlKind::Combo, desc.id, parent, box),
      m_pBox(box),
      m_field(desc.field),
      m_map(desc.offset, desc.conversion, static_cast<int>(desc.texts.size()), FieldBytes(desc.field.Type())),
      m_bAdjust(desc.adjust) {
  box->clear();
  for (const std::string& text : desc.texts) box->addItem(FromCp932(text));
  Listen(box, &QComboBox::activated, [this] { SendCommand(kNoticeSelChange); });
  Refresh();
}

void cCombo::Refresh() {
  if (!m_field.IsBound()) return;
  if (m_bAdjust) Adjust();
  const int position = m_map.DataToPos(static_cast<int>(m_field.Get()));
  m_pBox->setCurrentIndex(position >= 0 && position < m_pBox->count() ? position : -1);
}

void cCombo::Commit() {
  if (Updating() || !m_field.IsBound()) return;
  m_field.Set(m_map.PosToData(m_pBox->currentIndex()));
}

void cCombo::SetMin(int value) {
  if (m_map.SetMin(value)) Refresh();
}

void cCombo::Adjust() {
  if (!m_field.IsBound()) return;
  int value = static_cast<int>(m_field.Get());
  if (m_map.Adjust(value)) m_field.Set(value);
}

}  // namespace velmora
