#include "ui/framework/IdleWake.h"

namespace velmora {
namespace {

std::function<void()>& Waker() {
  static std::function<void()> waker;
  return waker;
}

}  // namespace

void SetIdleWaker(std::function<void()> waker) { Waker() = std::move(waker); }

void WakeIdle() {
  if (Waker()) Waker()();
}

}  // namespace velmora
