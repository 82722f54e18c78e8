#include "ui/controls/List.h"

#include <QEvent>

#include "ui/framework/Commands.h"

namespace velmora {
namespace {

class cFocusOutFilter : public QObject {
 public:
  cFocusOutFilter(QObject* parent, std::function<void()> onFocusOut) : QObject(parent), m_onFocusOut(std::move(onFocusOut)) {}

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::FocusOut) m_onFocusOut();
    return false;
  }

 private:
  std::function<void()> m_onFocusOut;
};

}  // namespace

cList::cList(cDialog& parent, QListWidget* list, int id)
    : cControl(eControlKind::List, id, parent, list),
      m_pList(list),
      m_pFocusFilter(new cFocusOutFilter(list, [this] { SendCommand(kNoticeKillFocus); })) {
  list->installEventFilter(m_pFocusFilter);
  Listen(list, &QListWidget::currentRowChanged, [this] { SendCommand(kNoticeSelChange); });
}

cList::~cList() {
  if (Widget()) delete m_pFocusFilter;
}

void cList::OnAfterCommand() { m_pList->setUpdatesEnabled(true); }

QListWidget* NewListWidget(QWidget* parent, int chars, int rows) {
  auto* list = new QListWidget(parent);
  const QFontMetrics metrics(list->font());
  list->setMinimumSize(metrics.averageCharWidth() * chars, metrics.height() * rows);
  return list;
}

}  // namespace velmora
