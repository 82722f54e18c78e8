#pragma once
#include <functional>

namespace velmora {

// The main loop waits for events unless something animates. A window that
// starts to need its Idle calls (an animated page, a drag outside its area)
// wakes the loop here; the loop goes back to waiting on its own once no
// window wants idle calls any more.
void SetIdleWaker(std::function<void()> waker);
void WakeIdle();

}  // namespace velmora
