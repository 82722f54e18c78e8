#include "ui/palette/PaletteMoveDialog.h"

#include "core/SystemText.h"
#include "ui/framework/QtText.h"

namespace velmora {
namespace {

enum eMoveIds { kIdFirst = 1100, kIdFirstSpin, kIdLast, kIdLastSpin, kIdTarget, kIdTargetSpin, kIdOperation };

}  // namespace

cPaletteMoveDialog::cPaletteMoveDialog(cDialogManager& manager, QWidget* parent, cPaletteSide side, QPoint position)
    : cDialog(manager, parent), m_side(side), m_position(position) {
  SetTitle(Ui("データの移動"));
  SetLogName("move dialog");
  const double count = PaletteCount(side);
  m_form.rows = {
      {nullptr, cEditValDesc{kIdFirst, &m_request.first, 1, count - 1, kIdFirstSpin, 1}, nullptr, "～"},
      {nullptr, cEditValDesc{kIdLast, &m_request.last, 1, count - 1, kIdLastSpin, 1}, nullptr, "番を", true},
      {nullptr, cEditValDesc{kIdTarget, &m_request.target, 1, count, kIdTargetSpin, 1}, nullptr, "番へ", true},
      {nullptr, cComboDesc{kIdOperation, &m_request.operation, SysTexts({"移動", "コピー＆挿入", "削除"})}},
  };
}

void cPaletteMoveDialog::OnInitDialog() {
  cDialog::OnInitDialog();
  if (Window()) Window()->move(m_position);
}

bool cPaletteMoveDialog::OnApply() {
  MoveEntries(m_side, m_request);
  return true;
}

void cPaletteMoveDialog::OnDialogCommand(int id, int /*notice*/) {
  // The target edit follows the operation while the author chooses it.
  if (id == kIdOperation) {
    if (cControl* operation = FindControl(kIdOperation)) operation->Commit();
  }
}

void cPaletteMoveDialog::UpdateEnables() { EnableControl(kIdTarget, m_request.operation != kDeleteEntries); }

}  // namespace velmora
