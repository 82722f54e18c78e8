#include "platform/Screen.h"

namespace velmora {
namespace {

cScreenSize g_screen;

}  // namespace

cScreenSize ScreenSize() { return g_screen; }

void SetScreenSize(const cScreenSize& size) { g_screen = size; }

}  // namespace velmora
