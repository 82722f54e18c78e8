#include "ui/app/WindowSetState.h"

namespace velmora {

cWindowSetSteps cWindowSetState::UserMinimised() {
  m_bMinimised = true;
  return {true, true, false};
}

cWindowSetSteps cWindowSetState::ActivationChanged(bool active) {
  if (!m_bMinimised) return {};
  if (active) return Restore();
  return {true, true, false};
}

cWindowSetSteps cWindowSetState::RestoredFromTaskBar() { return m_bMinimised ? Restore() : cWindowSetSteps{}; }

cWindowSetSteps cWindowSetState::Restore() {
  m_bMinimised = false;
  return {false, false, true};
}

}  // namespace velmora
