#include "project/SystemGaugeRules.h"

namespace velmora {
namespace {

constexpr int kGaugeHp = 2;
constexpr int kGaugeSp = 3;
constexpr int kGaugeLives = 4;

}  // namespace

cGaugeUse GaugeUse(bool show, bool symbol) { return {show, show && !symbol, show}; }

bool IsBarGauge(int gauge) { return gauge == kGaugeHp || gauge == kGaugeSp; }

int GaugeDigitsMax(int gauge) { return gauge == kGaugeLives ? 2 : 9; }

}  // namespace velmora
