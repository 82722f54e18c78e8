#pragma once

namespace velmora {

// Which controls of a status window item the author can use. The symbol
// check and the item's detail (its count of digits, or "数値を表示" for a
// bar) follow "表示"; the text is what shows in place of the symbol, so it
// is used only while the symbol is off.
struct cGaugeUse {
  bool symbol = false;
  bool text = false;
  bool detail = false;
};
cGaugeUse GaugeUse(bool show, bool symbol);

// HP and SP are bars: in place of a count of digits they have
// "数値を表示" and the threshold at which the bar changes colour.
bool IsBarGauge(int gauge);
// The largest count of digits of an item; the lives show two at most.
int GaugeDigitsMax(int gauge);

}  // namespace velmora
