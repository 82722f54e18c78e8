#include "objects/LabelTable.h"

#include <cstdarg>
#include <cstdio>

#include "core/SystemText.h"

namespace velmora {

const char* cLabelTable::Utf8(int value) const {
  return Holds(value) ? rows[static_cast<size_t>(value - first)] : "";
}

const char* cLabelTable::Label(int value) const { return SysText(Utf8(value)); }

void AppendFormat(std::string& text, const char* format, ...) {
  va_list args;
  va_start(args, format);
  va_list measure;
  va_copy(measure, args);
  const int length = std::vsnprintf(nullptr, 0, format, measure);
  va_end(measure);
  if (length > 0) {
    const size_t start = text.size();
    text.resize(start + static_cast<size_t>(length) + 1);
    std::vsnprintf(text.data() + start, static_cast<size_t>(length) + 1, format, args);
    text.resize(start + static_cast<size_t>(length));
  }
  va_end(args);
}

}  // namespace velmora
