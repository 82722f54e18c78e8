#include "ui/framework/MouseState.h"

namespace velmora {
namespace {

constexpr int kFarDistance = 32;
constexpr int kNearEvents = 8;

struct cButtonMemory {
  bool heldBefore = false;  // the reading window's held flag before this reading
  bool pressLatch = false;  // a reading already reported this press
};

cButtonMemory g_left;
cButtonMemory g_right;

void UpdateButton(cButtonMemory& memory, bool down, bool& held, bool& pressed, bool& released) {
  memory.heldBefore = held;
  held = down;
  pressed = down && !memory.pressLatch;
  memory.pressLatch = down;
  released = memory.heldBefore && !down;
}

}  // namespace

void UpdateMouseButtons(cMouseState& state, bool leftDown, bool rightDown) {
  UpdateButton(g_left, leftDown, state.leftHeld, state.leftPressed, state.leftReleased);
  UpdateButton(g_right, rightDown, state.rightHeld, state.rightPressed, state.rightReleased);
}

void ResetMouseMemory() { g_left = g_right = cButtonMemory(); }

int cEdgeScroll::Count(int& counter, int distance) {
  if (distance <= 0) return 0;
  ++counter;
  if (distance > kFarDistance || counter >= kNearEvents) {
    counter = 0;
    return 1;
  }
  return 0;
}

cEdgeScroll::cStep cEdgeScroll::Step(int x, int y, int clientWidth, int clientHeight) {
  cStep step;
  step.dx = Count(m_right, x - (clientWidth - 1)) - Count(m_left, -x);
  step.dy = Count(m_down, y - (clientHeight - 1)) - Count(m_up, -y);
  return step;
}

void cEdgeScroll::Reset() { m_left = m_right = m_up = m_down = 0; }

}  // namespace velmora
