#pragma once
#include <span>
#include <string>

namespace velmora {

// An enumeration as the author sees it: row r is the label of the stored
// value `first + r`. Labels are written in UTF-8 here and handed out in
// CP932, the form every record and dialog uses.
struct cLabelTable {
  std::span<const char* const> rows;
  int first = 0;

  int Size() const { return static_cast<int>(rows.size()); }
  bool Holds(int value) const { return value >= first && value - first < Size(); }
  // The CP932 label of a stored value; "" for a value outside the table,
  // which a damaged file can hold.
  const char* Label(int value) const;
  // The UTF-8 source text, for tests and the inspector.
  const char* Utf8(int value) const;
};

// A numeric parameter that a table describes: an empty label hides it.
struct cParamDef {
  const char* label = "";
  int min = 0;
  int max = 0;
  int def = 0;
  bool Shown() const { return label[0] != '\0'; }
};

// Appends printf-style to a CP932 text; the format is CP932 too.
void AppendFormat(std::string& text, const char* format, ...) __attribute__((format(printf, 2, 3)));

}  // namespace velmora
