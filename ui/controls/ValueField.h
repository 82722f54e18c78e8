#pragma once
#include <cstdint>
#include <type_traits>

namespace velmora {

// The value types that a numeric control can edit, numbered in the order
// the toolkit stores them.
enum class eValueType : int8_t { Char, UChar, Short, UShort, Int, UInt, Float, Double };

struct cTypeLimits {
  double minimum;
  double maximum;
};

// Types without limits (float, double) give the widest doubles.
cTypeLimits TypeLimits(eValueType type);
inline bool IsFloatType(eValueType type) { return type == eValueType::Float || type == eValueType::Double; }

template <class T>
constexpr eValueType ValueTypeOf() {
  static_assert(std::is_arithmetic_v<T> && sizeof(T) <= 8, "a numeric field is needed");
  if constexpr (std::is_same_v<T, double>) return eValueType::Double;
  else if constexpr (std::is_same_v<T, float>) return eValueType::Float;
  else if constexpr (sizeof(T) == 1) return std::is_signed_v<T> ? eValueType::Char : eValueType::UChar;
  else if constexpr (sizeof(T) == 2) return std::is_signed_v<T> ? eValueType::Short : eValueType::UShort;
  else {
    static_assert(sizeof(T) == 4, "64-bit fields are not edited in dialogs");
    return std::is_signed_v<T> ? eValueType::Int : eValueType::UInt;
  }
}

// The address of a record field with its type, so that one control class
// serves every width. Values pass through a double, which holds every
// 32-bit integer exactly.
class cValueField {
 public:
  cValueField() = default;
  template <class T>
  cValueField(T* field) : m_pField(field), m_type(ValueTypeOf<T>()) {}  // NOLINT: implicit on purpose

  bool IsBound() const { return m_pField != nullptr; }
  eValueType Type() const { return m_type; }
  double Get() const;
  // Stores `value` clamped to the type's range; integers are truncated.
  void Set(double value) const;

 private:
  void* m_pField = nullptr;
  eValueType m_type = eValueType::Int;
};

}  // namespace velmora
