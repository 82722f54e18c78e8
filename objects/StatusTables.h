#pragma once
#include <span>

#include "objects/LabelTable.h"

namespace velmora {

// A status of a character or of the system: its own range, the range of a
// value compared with it or put into it, and where "％で指定" is allowed.
struct cStatusInfo {
  const char* label;
  int ownMin, ownMax;
  int operandMin, operandMax;
  bool condPercent;
  bool cmdPercent;
};

// A flag with its values; the value labels run from the smallest value on.
struct cFlagInfo {
  const char* label;
  int min, max, def;
  std::span<const char* const> values;

  // The CP932 label of a flag value; "" outside the flag's range.
  const char* ValueLabel(int value) const { return cLabelTable{values, min}.Label(value); }
};

extern const std::span<const cStatusInfo> CharaStatusTable;
extern const std::span<const cStatusInfo> SystemStatusTable;
extern const std::span<const cFlagInfo> CharaFlagTable;
extern const std::span<const cFlagInfo> SystemFlagTable;

// Rows of CharaStatusTable that the rules name.
inline constexpr int kStatusCharaVar = 0;
inline constexpr int kStatusX = 6;
inline constexpr int kStatusY = 7;
// The row of CharaFlagTable whose stored values start at 1.
inline constexpr int kFlagGiant = 5;

// The CP932 label of a row; "" for a row outside the table.
const char* StatusLabel(std::span<const cStatusInfo> table, int row);
const cFlagInfo* FlagAt(std::span<const cFlagInfo> table, int row);

}  // namespace velmora
