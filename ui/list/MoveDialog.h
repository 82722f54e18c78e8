#pragma once
#include <cstdint>
#include <functional>
#include <vector>

#include "core/ListMove.h"
#include "ui/framework/Dialog.h"

namespace velmora {

// What the author asks of the move dialog; numbers are vector indices,
// entry 0 being the reserved first entry.
struct cMoveRequest {
  int32_t nFirst = 1;
  int32_t nLast = 1;
  int32_t nTarget = 1;
  int32_t nOp = static_cast<int32_t>(eMoveOp::Move);
};

// "データの移動": first and last entry, the target and the operation.
class cMoveDialog : public cDialog {
 public:
  cMoveDialog(cDialogManager& manager, QWidget* parent, cMoveRequest& request, int count);

  static constexpr int kIdFirst = 1003;
  static constexpr int kIdLast = 1004;
  static constexpr int kIdTarget = 1005;
  static constexpr int kIdOp = 1010;

 protected:
  // Erasing has no target.
  void UpdateEnables() override;
};

// Runs the move dialog over a palette vector. After a change the palette's
// selection stays on an entry, and `onMoved` renumbers what refers to the
// entries by position and marks the palette changed.
template <class Element>
bool MoveEntriesByDialog(QWidget* parent, cDialogManager& manager, std::vector<Element>& entries, int& selection,
                         const std::function<void(const cMoveRequest&)>& onMoved) {
  cMoveRequest request;
  cMoveDialog dialog(manager, parent, request, static_cast<int>(entries.size()));
  if (dialog.DoModal(0) != 1) return false;
  if (!MoveEntries(entries, request.nFirst, request.nLast, request.nTarget, static_cast<eMoveOp>(request.nOp)))
    return false;
  selection = SelectionAfterMove(selection, static_cast<int>(entries.size()));
  if (onMoved) onMoved(request);
  return true;
}

}  // namespace velmora
