#include "core/AppControl.h"

#include <cstdlib>

namespace velmora {
namespace {

int g_closeRequests = 0;
int g_destroyRequests = 0;

class cHeadlessControl : public cAppControl {
 public:
  void PostCloseRequest() override { ++g_closeRequests; }
  void DestroyMainWindow() override { ++g_destroyRequests; }
  void Beep() override {}
  [[noreturn]] void EndProcess(int code) override { std::exit(code); }
};

cHeadlessControl g_headless;
cAppControl* g_control = &g_headless;

}  // namespace

cAppControl& AppControl() { return *g_control; }

void SetAppControl(cAppControl* control) { g_control = control ? control : &g_headless; }

int CloseRequestCount() { return g_closeRequests; }

int DestroyRequestCount() { return g_destroyRequests; }

}  // namespace velmora
