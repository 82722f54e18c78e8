#include "graphics/TextRenderer.h"

namespace velmora {
namespace {
cTextRenderer* g_renderer = nullptr;
}

cTextRenderer* TextRenderer() { return g_renderer; }
void SetTextRenderer(cTextRenderer* renderer) { g_renderer = renderer; }

}  // namespace velmora
