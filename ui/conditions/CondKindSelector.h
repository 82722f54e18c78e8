#pragma once
#include "objects/Cond.h"
#include "ui/framework/Dialog.h"

namespace velmora {

// Dialog 170 "条件": a button for each kind of condition, in the order of
// CondKindTable. A button sets the kind and opens that kind's dialog on the
// record; the selector closes with that dialog's result.
class cCondKindSelector : public cDialog {
 public:
  cCondKindSelector(cDialogManager& manager, QWidget* parent, cEdCond& record, bool distanceAllowed);

  // A new record: the author chooses its kind. An existing one: its own
  // button is pressed at once, so the author sees only its kind's dialog.
  // True on OK.
  bool Run(bool isNew);

 protected:
  void BindOwnControls() override;
  void OnDialogCommand(int id, int notice) override;
  void UpdateEnables() override;

 private:
  bool OpenKind(int kind, bool isNew, QWidget* parent);

  QWidget* m_pOpener;
  cEdCond& m_record;
  bool m_bDistanceAllowed;
};

}  // namespace velmora
