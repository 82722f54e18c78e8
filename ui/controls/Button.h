#pragma once
#include <QAbstractButton>

#include "ui/controls/Control.h"
#include "ui/controls/Descriptors.h"

namespace velmora {

// A push button: it has no field, only its command.
class cButton : public cControl {
 public:
  cButton(cDialog& parent, QAbstractButton* button, const cButtonDesc& desc);
};

// A check box bound to a 0/1 field.
class cCheck : public cControl {
 public:
  cCheck(cDialog& parent, QAbstractButton* box, const cCheckDesc& desc);
  void Refresh() override;
  void Commit() override;
  bool IsChecked() const;
  // Shows a state without touching the field, as a click would; the field
  // takes it at the next Commit.
  void SetChecked(bool checked);

 private:
  QAbstractButton* m_pBox;
  cValueField m_field;
};

}  // namespace velmora
