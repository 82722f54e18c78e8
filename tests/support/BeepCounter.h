#pragma once
#include <cstdlib>

#include "core/AppControl.h"

namespace velmora::testing {

// Stands in for the application while it lives and counts the beeps of
// commands that could not work; nothing closes or ends.
class cBeepCounter : public cAppControl {
 public:
  cBeepCounter() { SetAppControl(this); }
  ~cBeepCounter() override { SetAppControl(nullptr); }
  int beeps = 0;
  void PostCloseRequest() override {}
  void DestroyMainWindow() override {}
  void Beep() override { ++beeps; }
  [[noreturn]] void EndProcess(int) override { std::abort(); }
};

}  // namespace velmora::testing
