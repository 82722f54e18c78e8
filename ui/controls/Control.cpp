#include "ui/controls/Control.h"

#include "ui/framework/Commands.h"
#include "ui/framework/Dialog.h"

namespace velmora {

cControl::cControl(eControlKind kind, int id, cDialog& parent, QWidget* widget)
    : m_kind(kind), m_nId(id), m_parent(parent), m_pWidget(widget) {}

cControl::~cControl() {
  for (const QMetaObject::Connection& connection : m_connections) QObject::disconnect(connection);
}

void cControl::Enable(bool enable) {
  if (m_pWidget) m_pWidget->setEnabled(enable);
}

bool cControl::Updating() const { return m_parent.IsUpdating(); }

void cControl::SendCommand(int notice) const { m_parent.SendCommand(MakeCommand(m_nId, notice), 0); }

}  // namespace velmora
