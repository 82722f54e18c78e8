#include "ui/conditions/CondKindSelector.h"

#include <QWidget>
#include <algorithm>

#include "core/Log.h"
#include "objects/CondTables.h"
#include "ui/conditions/CondDialog.h"
#include "ui/conditions/CondIds.h"
#include "ui/framework/Commands.h"
#include "ui/framework/QtText.h"

namespace velmora {

cCondKindSelector::cCondKindSelector(cDialogManager& manager, QWidget* parent, cEdCond& record, bool distanceAllowed)
    : cDialog(manager, parent), m_pOpener(parent), m_record(record), m_bDistanceAllowed(distanceAllowed) {
  SetTitle(Ui("条件"));
  SetLogName("condition kind");
  m_form.rows = RepeatRows(kCondDistance, [](int index) {
    const int kind = kCondCommonVar + index;
    return std::vector<cFormRow>{{nullptr, cButtonDesc{kIdCondKindButton + index, CondKindTable.Utf8(kind)}}};
  });
  m_form.rows.push_back(FormRows({{nullptr, cButtonDesc{kIdCancel, "キャンセル"}}}));
  m_form.okCancel = false;
}

bool cCondKindSelector::Run(bool isNew) {
  if (!isNew) return OpenKind(m_record.m_nKind, false, m_pOpener);
  return DoModal(0) == 1;
}

// The buttons stand as one column of equal width.
void cCondKindSelector::BindOwnControls() {
  std::vector<QWidget*> buttons = {Item(kIdCancel)};
  for (int kind = kCondCommonVar; kind <= kCondDistance; ++kind) buttons.push_back(Item(kIdCondKindButton + kind - 1));
  int width = 0;
  for (QWidget* button : buttons) width = std::max(width, button ? button->sizeHint().width() : 0);
  for (QWidget* button : buttons) {
    if (button) button->setMinimumWidth(width);
  }
}

void cCondKindSelector::UpdateEnables() { EnableControl(kIdCondKindButton + kCondDistance - 1, m_bDistanceAllowed); }

void cCondKindSelector::OnDialogCommand(int id, int notice) {
  const int kind = id - kIdCondKindButton + 1;
  if (notice != kNoticeClicked || kind < kCondCommonVar || kind > kCondDistance) return;
  Close(OpenKind(kind, true, Window()) ? 1 : 0);
}

bool cCondKindSelector::OpenKind(int kind, bool isNew, QWidget* parent) {
  const cCondKindForm* form = CondKindForm(kind);
  if (!form) {
    ReportLine("condition: kind %d has no dialog, nothing was opened", kind);
    return false;
  }
  cCondDialog dialog(Manager(), parent, m_record, *form, isNew);
  return dialog.DoModal(0) == 1;
}

}  // namespace velmora
