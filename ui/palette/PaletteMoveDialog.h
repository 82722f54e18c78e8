#pragma once
#include <QPoint>

#include "stage/PaletteOps.h"
#include "ui/framework/Dialog.h"

namespace velmora {

// "データの移動": a range of entries moved, copied in or deleted. OK runs
// the operation on the palette; the request stays readable afterwards.
class cPaletteMoveDialog : public cDialog {
 public:
  cPaletteMoveDialog(cDialogManager& manager, QWidget* parent, cPaletteSide side, QPoint position);
  const cPaletteMoveRequest& Request() const { return m_request; }

 protected:
  void OnInitDialog() override;
  bool OnApply() override;
  void OnDialogCommand(int id, int notice) override;
  void UpdateEnables() override;

 private:
  cPaletteSide m_side;
  QPoint m_position;
  cPaletteMoveRequest m_request;
};

}  // namespace velmora
