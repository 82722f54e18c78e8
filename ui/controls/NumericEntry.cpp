#include "ui/controls/NumericEntry.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "core/SystemText.h"
#include "platform/TextCodec.h"

namespace velmora {
namespace {

constexpr size_t kReadLimit = 1024;

struct cFullWidthKey {
  const char* utf8;
  char key;
};
constexpr cFullWidthKey kFullWidthKeys[] = {
    {"１", '1'}, {"２", '2'}, {"３", '3'}, {"４", '4'}, {"５", '5'}, {"６", '6'},
    {"７", '7'}, {"８", '8'}, {"９", '9'}, {"０", '0'}, {"－", '-'}, {"．", '.'},
};

std::string Format(double value, int decimals) {
  char text[400];
  std::snprintf(text, sizeof text, "%.*f", decimals, value);
  return text;
}

}  // namespace

cNumericEntry::cNumericEntry(eValueType type, double minimum, double maximum, double step)
    : m_type(type), m_minimum(minimum), m_maximum(maximum), m_step(step),
      m_decimals(IsFloatType(type) ? DecimalsFromStep(step) : 0) {}

bool cNumericEntry::IsAcceptedChar(unsigned code) {
  return (code >= '0' && code <= '9') || code == '-' || code == '.' || (code >= 1 && code <= 39);
}

std::string cNumericEntry::FullWidthToKeys(const std::string& cp932) {
  std::string keys;
  for (size_t i = 0; i < cp932.size(); ++i) {
    if (!IsCp932LeadByte(static_cast<unsigned char>(cp932[i])) || i + 1 >= cp932.size()) continue;
    for (const cFullWidthKey& entry : kFullWidthKeys) {
      if (cp932.compare(i, 2, SysText(entry.utf8)) == 0) keys += entry.key;
    }
    ++i;
  }
  return keys;
}

int cNumericEntry::DecimalsFromStep(double step) {
  char text[400];
  std::snprintf(text, sizeof text, "%.10lf", step);
  const char* point = std::strchr(text, '.');
  if (!point) return 0;
  size_t end = std::strlen(text);
  while (end > static_cast<size_t>(point - text) + 1 && text[end - 1] == '0') --end;
  return static_cast<int>(end - static_cast<size_t>(point - text) - 1);
}

std::string cNumericEntry::Clean(const std::string& cp932) {
  std::string clean;
  for (size_t i = 0; i < cp932.size(); ++i) {
    const char c = cp932[i];
    if (IsCp932LeadByte(static_cast<unsigned char>(c))) {
      ++i;
      continue;
    }
    if ((c == '-' && clean.empty()) || c == '.' || (c >= '0' && c <= '9')) clean += c;
  }
  return clean;
}

double cNumericEntry::ParseFloat(const std::string& clean) {
  const double raw = std::strtod(clean.c_str(), nullptr);
  m_strShown = clean;
  return std::strtod(Format(raw, m_decimals).c_str(), nullptr);
}

double cNumericEntry::ParseInteger(const std::string& clean) {
  const double value = static_cast<double>(std::strtoll(clean.c_str(), nullptr, 10));
  m_strShown.clear();
  if (clean == "-") {
    m_strShown = "-";
  } else if (!clean.empty() && clean[0] == '-' && value == static_cast<double>(std::strtoll(clean.c_str() + 1, nullptr, 10))) {
    m_strShown = "-" + std::to_string(static_cast<long long>(value));
  }
  return value;
}

double cNumericEntry::Parse(const std::string& text) {
  const std::string clean = Clean(text.substr(0, kReadLimit));
  double value = IsFloatType(m_type) ? ParseFloat(clean) : ParseInteger(clean);
  const cTypeLimits limits = TypeLimits(m_type);
  if (value > limits.maximum || value < limits.minimum) {
    value = value > limits.maximum ? limits.maximum : limits.minimum;
    m_strShown.clear();
  }
  m_bEmpty = clean.empty();
  if (m_bEmpty) value = ValueForEmpty();
  return value;
}

double cNumericEntry::Clamp(double value) const {
  if (value < m_minimum) return m_minimum;
  if (value > m_maximum) return m_maximum;
  return value;
}

std::optional<std::string> cNumericEntry::Display(double value, bool force) const {
  const double shown = Clamp(value);
  force = force || shown != value;
  if (m_bEmpty) return std::nullopt;
  if (force) {
    if (IsFloatType(m_type)) return Format(shown, m_decimals);
    return std::to_string(static_cast<long long>(shown));
  }
  if (!m_strShown.empty()) return m_strShown;
  if (IsFloatType(m_type)) return std::nullopt;
  return std::to_string(static_cast<long long>(shown));
}

void cNumericEntry::SetRange(double minimum, double maximum) {
  m_minimum = minimum;
  m_maximum = maximum;
}

void cNumericEntry::ClearTyping() {
  m_bEmpty = false;
  m_strShown.clear();
}

}  // namespace velmora
