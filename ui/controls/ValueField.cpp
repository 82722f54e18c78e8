#include "ui/controls/ValueField.h"

#include <algorithm>
#include <cfloat>
#include <cmath>

namespace velmora {
namespace {

template <class T>
T Stored(double value) {
  if constexpr (std::is_floating_point_v<T>) {
    return static_cast<T>(value);
  } else {
    if (std::isnan(value)) return 0;
    const cTypeLimits limits = TypeLimits(ValueTypeOf<T>());
    return static_cast<T>(std::clamp(std::trunc(value), limits.minimum, limits.maximum));
  }
}

template <class T>
void Put(void* field, double value) {
  *static_cast<T*>(field) = Stored<T>(value);
}

}  // namespace

cTypeLimits TypeLimits(eValueType type) {
  static constexpr cTypeLimits kLimits[] = {
      {-128.0, 127.0},           {0.0, 255.0},         {-32768.0, 32767.0}, {0.0, 65535.0},
      {-2147483648.0, 2147483647.0}, {0.0, 4294967295.0}, {-DBL_MAX, DBL_MAX}, {-DBL_MAX, DBL_MAX},
  };
  return kLimits[static_cast<int>(type)];
}

double cValueField::Get() const {
  switch (m_type) {
    case eValueType::Char: return *static_cast<const int8_t*>(m_pField);
    case eValueType::UChar: return *static_cast<const uint8_t*>(m_pField);
    case eValueType::Short: return *static_cast<const int16_t*>(m_pField);
    case eValueType::UShort: return *static_cast<const uint16_t*>(m_pField);
    case eValueType::Int: return *static_cast<const int32_t*>(m_pField);
    case eValueType::UInt: return *static_cast<const uint32_t*>(m_pField);
    case eValueType::Float: return *static_cast<const float*>(m_pField);
    case eValueType::Double: return *static_cast<const double*>(m_pField);
  }
  return 0;
}

void cValueField::Set(double value) const {
  switch (m_type) {
    case eValueType::Char: return Put<int8_t>(m_pField, value);
    case eValueType::UChar: return Put<uint8_t>(m_pField, value);
    case eValueType::Short: return Put<int16_t>(m_pField, value);
    case eValueType::UShort: return Put<uint16_t>(m_pField, value);
    case eValueType::Int: return Put<int32_t>(m_pField, value);
    case eValueType::UInt: return Put<uint32_t>(m_pField, value);
    case eValueType::Float: return Put<float>(m_pField, value);
    case eValueType::Double: return Put<double>(m_pField, value);
  }
}

}  // namespace velmora
