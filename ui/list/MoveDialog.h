#pragma once
#include <QPoint>

#include "core/ListMove.h"
#include "ui/framework/Dialog.h"

namespace velmora {

// "データの移動": first and last entry, the target and the operation, for
// a list of `count` entries. OK leaves the answer in `request`; the caller
// runs it.
class cMoveDialog : public cDialog {
 public:
  cMoveDialog(cDialogManager& manager, QWidget* parent, cMoveRequest& request, int count, QPoint position);

  static constexpr int kIdFirst = 1003;
  static constexpr int kIdLast = 1004;
  static constexpr int kIdTarget = 1005;
  static constexpr int kIdOp = 1010;

 protected:
  void OnInitDialog() override;
  // Erasing has no target.
  void UpdateEnables() override;

 private:
  QPoint m_position;
};

}  // namespace velmora
