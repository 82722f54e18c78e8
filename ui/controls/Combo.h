#pragma once
#include <QComboBox>

#include "ui/controls/ComboMap.h"
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

 private:
  QComboBox* m_pBox;
  cValueField m_field;
  cComboMap m_map;
  bool m_bAdjust;
};

}  // namespace velmora
