#pragma once
#include <vector>

namespace velmora {

// How a combo box's list positions map to field values: plainly shifted by
// an offset (an enumeration that doesn't start at 0), or through a table
// of the values that the list shows (a subset of an enumeration).
class cComboMap {
 public:
  cComboMap(int offset, const std::vector<int>* conversion, int entries, int fieldBytes)
      : m_offset(offset), m_pConversion(conversion), m_entries(entries), m_fieldBytes(fieldBytes) {}

  int DataToPos(int value) const;
  int PosToData(int position) const;
  // Forces `value` into the values the list can show. Only without a
  // conversion table; false (and the value untouched) with one.
  bool Adjust(int& value) const;
  // A new first value; refused with a conversion table.
  bool SetMin(int value);
  void SetEntries(int entries) { m_entries = entries; }
  bool HasConversion() const { return m_pConversion != nullptr; }

 private:
  int m_offset;
  const std::vector<int>* m_pConversion;
  int m_entries;
  int m_fieldBytes;
};

}  // namespace velmora
