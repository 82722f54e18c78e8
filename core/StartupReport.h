#pragma once
#include <string>

namespace velmora {

// The font that property pages are measured against: on Linux the GUI's
// default font. The GUI sets it before the report and the measurement.
struct cUiFont {
  std::string face;  // CP932
  int width = 0;
  int height = 0;
  unsigned charset = 128;  // the Japanese character set
};

// The report log's opening lines: the version, then one line each for the
// system, processor, memory, disk, display and font.
void WriteStartupReport(const cUiFont& font);

}  // namespace velmora
