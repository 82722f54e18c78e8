#include "ui/controls/Combo.h"

#include <QSignalBlocker>

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
      m_map(desc.offset, desc.conversion, 0, FieldBytes(desc.field.Type())),
      m_bAdjust(desc.adjust) {
  SetRows({desc.texts, desc.offset, desc.conversion});
  Listen(box, &QComboBox::activated, [this] { SendCommand(kNoticeSelChange); });
  Refresh();
}

void cCombo::Refresh() {
  if (!m_field.IsBound()) return;
  if (m_bAdjust) Adjust();
  ShowField();
}

bool cCombo::ShowField() {
  const int position = m_field.IsBound() ? m_map.DataToPos(static_cast<int>(m_field.Get())) : -1;
  const bool held = position >= 0 && position < m_pBox->count();
  m_pBox->setCurrentIndex(held ? position : -1);
  return held;
}

bool cCombo::SetRows(const cComboRows& rows) {
  {
    const QSignalBlocker quiet(m_pBox);
    m_pBox->clear();
    for (const std::string& text : rows.texts) m_pBox->addItem(FromCp932(text));
  }
  m_map = cComboMap(rows.offset, rows.conversion, static_cast<int>(rows.texts.size()), FieldBytes(m_field.Type()));
  return ShowField();
}

// A list that shows no row (its rows don't hold the field's value, or it
// has none) has no value to give: the field keeps what it holds.
void cCombo::Commit() {
  if (Updating() || !m_field.IsBound() || m_pBox->currentIndex() < 0) return;
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
