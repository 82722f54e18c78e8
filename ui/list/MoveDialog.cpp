#include "ui/list/MoveDialog.h"

#include <QComboBox>
#include <QWidget>

#include "ui/framework/QtText.h"

namespace velmora {
namespace {

constexpr int kIdFirstSpin = 1011;
constexpr int kIdLastSpin = 1012;
constexpr int kIdTargetSpin = 1013;

}  // namespace

cMoveDialog::cMoveDialog(cDialogManager& manager, QWidget* parent, cMoveRequest& request, int count, QPoint position)
    : cDialog(manager, parent), m_position(position) {
  SetTitle(Ui("データの移動"));
  SetLogName("move dialog");
  const double lastEntry = count - 1;
  m_form.rows = {
      {nullptr, cEditValDesc{kIdFirst, &request.nFirst, 1, lastEntry, kIdFirstSpin, 1}},
      {"～", cEditValDesc{kIdLast, &request.nLast, 1, lastEntry, kIdLastSpin, 1}, nullptr, "番を", true},
      {nullptr, cEditValDesc{kIdTarget, &request.nTarget, 1, double(count), kIdTargetSpin, 1}, nullptr, "番へ"},
      {nullptr, cComboDesc{kIdOp, &request.nOp, SysTexts({"移動", "コピー＆挿入", "削除"})}, nullptr, nullptr, true},
  };
}

void cMoveDialog::OnInitDialog() {
  cDialog::OnInitDialog();
  if (Window()) Window()->move(m_position);
}

void cMoveDialog::UpdateEnables() {
  const auto* op = qobject_cast<QComboBox*>(Item(kIdOp));
  EnableControl(kIdTarget, !op || op->currentIndex() != static_cast<int>(eMoveOp::Erase));
}

}  // namespace velmora
