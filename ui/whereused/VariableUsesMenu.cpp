#include "ui/whereused/VariableUsesMenu.h"

#include <QMenu>

#include "core/AppControl.h"
#include "objects/GValInfo.h"
#include "ui/controls/Combo.h"
#include "ui/framework/Dialog.h"
#include "ui/framework/QtText.h"
#include "ui/whereused/WhereUsedEntry.h"

namespace velmora {
namespace {

void ShowVariableUses(cDialog& dialog, int combo, int scope) {
  const auto* list = dialog.FindControlOf<cCombo>(combo);
  const int number = list && list->Selection() >= 0 ? list->SelectedValue() : 0;
  if ((scope != kScopeCommon && scope != kScopeStage) || number < 1) {
    AppControl().Beep();
    return;
  }
  const eUseKind kind = scope == kScopeStage ? eUseKind::VarStage : eUseKind::VarCommon;
  ShowUsesOver(dialog.Manager(), dialog.Window(), {kind, number});
}

}  // namespace

void OfferVariableUses(cDialog& dialog, int button, int combo, std::function<int()> scope) {
  QWidget* widget = dialog.Item(button);
  if (!widget) return;
  widget->setContextMenuPolicy(Qt::CustomContextMenu);
  QObject::connect(widget, &QWidget::customContextMenuRequested, widget,
                   [&dialog, widget, combo, scope = std::move(scope)](const QPoint& at) {
                     QMenu menu(widget);
                     const QAction* search = menu.addAction(Ui("使用箇所の検索"));
                     if (menu.exec(widget->mapToGlobal(at)) == search) ShowVariableUses(dialog, combo, scope());
                   });
}

}  // namespace velmora
