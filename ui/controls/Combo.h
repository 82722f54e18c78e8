#pragma once
#include <QComboBox>

#include "ui/controls/ComboMap.h"
#include "ui/controls/ComboRows.h"
#include "ui/controls/Control.h"
#include "ui/controls/Descriptors.h"

namespace velmora {

// A combo box bound to an integer field of any width. The list shows the
// descriptor's texts; the field holds offset + position, or the conversion
// table's value for the position.
class cCombo : public cControl {
 public:
  cCombo(cDialog& parent, QComboBox* box, const cComboDesc& desc);
  void Refresh() override;
  void Commit() override;

  int DataToPos(int value) const { return m_map.DataToPos(value); }
  int PosToData(int position) const { return m_map.PosToData(position); }
  void SetMin(int value);
  // Forces the field into the range that the list can show.
  void Adjust();
  int Selection() const { return m_pBox->currentIndex(); }
  // The field value of the row the list shows now, committed or not.
  int SelectedValue() const { return m_map.PosToData(Selection()); }

  // Puts other rows in the list; the control stays bound to its field, and
  // the rows' offset or conversion table takes the place of the old one.
  // The field is not written: when the new rows hold its value, that row
  // is selected and the result is true; otherwise no row is selected and
  // the dialog decides (Adjust, or a value of its own, then Refresh).
  bool SetRows(const cComboRows& rows);

 private:
  // Selects the field's row; false, with no row selected, when the list
  // doesn't hold it.
  bool ShowField();

  QComboBox* m_pBox;
  cValueField m_field;
  cComboMap m_map;
  bool m_bAdjust;
};

}  // namespace velmora
