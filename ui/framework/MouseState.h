#pragma once

namespace velmora {

// The mouse as a window last read it. Pressed and released are edges: a
// press is seen by the first reading that finds the button down, in
// whichever window that reading runs, so two windows never both act on one
// click.
struct cMouseState {
  int x = 0, y = 0;              // client coordinates
  int screenX = 0, screenY = 0;
  bool leftHeld = false, rightHeld = false;
  bool leftPressed = false, rightPressed = false;
  bool leftReleased = false, rightReleased = false;
};

// Sets the six flags from the buttons' state now, against the process-wide
// memory of the previous reading.
void UpdateMouseButtons(cMouseState& state, bool leftDown, bool rightDown);
// Forgets the process-wide memory; for a fresh start in tests.
void ResetMouseMemory();

// Scrolling while a drag lies outside the client area: far outside, every
// event scrolls a line; close by, every eighth does.
class cEdgeScroll {
 public:
  struct cStep {
    int dx = 0, dy = 0;  // lines to scroll, -1, 0 or 1
  };
  cStep Step(int x, int y, int clientWidth, int clientHeight);
  void Reset();

 private:
  int Count(int& counter, int distance);
  int m_left = 0, m_right = 0, m_up = 0, m_down = 0;
};

}  // namespace velmora
