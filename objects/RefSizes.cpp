#include "objects/RefSizes.h"

#include <climits>

namespace velmora {
namespace {
const cRefSizes g_unbounded;
const cRefSizes* g_installed = nullptr;
}  // namespace

int cRefSizes::DbListSize(eDbList) const { return INT_MAX; }
int cRefSizes::PaletteListSize(ePalette, ePaletteList) const { return INT_MAX; }
std::optional<int> cRefSizes::SwordTypeTime(int) const { return std::nullopt; }

const cRefSizes& RefSizes() { return g_installed ? *g_installed : g_unbounded; }
void InstallRefSizes(const cRefSizes* sizes) { g_installed = sizes; }

}  // namespace velmora
