#pragma once
#include <optional>
#include <string>

#include "ui/controls/ValueField.h"

namespace velmora {

// The text rules of a numeric edit, apart from any widget: which typed
// characters get in, how a half-typed text becomes a value, and what the
// box shows for a value. The text shown may lag behind the value while the
// author types ("-", "-0", "1."), so that typing is never fought.
class cNumericEntry {
 public:
  cNumericEntry(eValueType type, double minimum, double maximum, double step);

  // Characters that reach the box as typed; the rest are swallowed.
  static bool IsAcceptedChar(unsigned code);
  // Full-width digits, minus and point of an input method's result turned
  // into the ASCII keys to type; every other character is dropped.
  static std::string FullWidthToKeys(const std::string& cp932);
  // Decimals shown for a float: the digits that the step has behind the point.
  static int DecimalsFromStep(double step);
  // Removes two-byte characters, a "-" anywhere but first, and everything
  // but digits and ".".
  static std::string Clean(const std::string& cp932);

  // Reads a text as a value; remembers what to go on showing.
  double Parse(const std::string& text);
  // The text to show for `value`, or none when the box keeps what it has.
  std::optional<std::string> Display(double value, bool force) const;
  double Clamp(double value) const;
  double ValueForEmpty() const { return m_minimum > 0 ? m_minimum : 0; }

  void SetRange(double minimum, double maximum);
  double Minimum() const { return m_minimum; }
  double Maximum() const { return m_maximum; }
  double Step() const { return m_step; }
  eValueType Type() const { return m_type; }
  int Decimals() const { return m_decimals; }
  bool IsEmpty() const { return m_bEmpty; }
  // The box was left or set from data: it shows plain values again.
  void ClearTyping();

 private:
  double ParseFloat(const std::string& clean);
  double ParseInteger(const std::string& clean);

  eValueType m_type;
  double m_minimum;
  double m_maximum;
  double m_step;
  int m_decimals;
  bool m_bEmpty = false;
  std::string m_strShown;
};

}  // namespace velmora
