#include "ui/worldmap/WorldPalette.h"

#include "core/WindowPlace.h"
#include "ui/framework/Commands.h"
#include "ui/framework/Hook.h"
#include "ui/framework/WindowFrame.h"
#include "ui/worldmap/WorldMapCommands.h"

namespace velmora {
namespace {

constexpr int kGap = 8;

}  // namespace

cWorldPalette::cWorldPalette(cDialogManager& manager, QWidget* parent, cWindowPlace& place,
                             const cWorldPaletteLinks& links)
    : cDialog(manager, parent), m_place(place), m_links(links) {
  SetWindowStyle(eWindowStyle::ToolWindow);
  m_form.okCancel = false;
}

cWorldPalette::~cWorldPalette() {
  if (Window()) KeepPlace(m_place, *Window());
}

void cWorldPalette::OnInitDialog() {
  cDialog::OnInitDialog();
  SetAccel(0, WorldAccelerators());
}

void cWorldPalette::Place(const QRect& anchor, bool size) {
  Window()->adjustSize();
  MoveFrame(*Window(), QPoint(anchor.right() + 1 + kGap, anchor.top()));
  if (!m_place.m_bStored) return;
  if (size) PlaceFrame(*Window(), FrameOfPlace(m_place));
  else MoveFrame(*Window(), FrameOfPlace(m_place).topLeft());
}

void cWorldPalette::OnCommand(uint32_t wParam, intptr_t lParam) {
  if (CommandId(wParam) == kIdCancel) {
    if (Window()) Window()->hide();
    return;
  }
  cDialog::OnCommand(wParam, lParam);
}

bool cWorldPalette::OnDialogMessage(QEvent& event) {
  if (event.type() != cHookKeyEvent::EventType()) return false;
  const auto& key = static_cast<const cHookKeyEvent&>(event);
  if (key.Kind() == cHookKeyEvent::KeyUp || key.Key() != Qt::Key_Space) return false;
  if (m_links.toggleMode) m_links.toggleMode();
  return true;
}

bool cWorldPalette::PassMapCommand(int id) const {
  if (!FindWorldCommand(id)) return false;
  if (m_links.mapCommand) m_links.mapCommand(id);
  return true;
}

void cWorldPalette::Changed() const {
  if (m_links.changed) m_links.changed();
}

}  // namespace velmora
