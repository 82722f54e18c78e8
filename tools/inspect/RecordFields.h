#pragma once
#include <string>
#include <string_view>
#include <vector>

#include "core/SaveData.h"

namespace velmora::inspect {

// One stored value of a record by its path, as the dump names it
// ("m_vecBack[0].m_iSpeedX"); UTF-8.
struct cFieldText {
  std::string path;
  std::string value;
};

// Every stored value of a record and of its nested parts, in file order.
// The record's own nested parts named in `skipped` are left out: a caller
// that compares them in its own terms.
std::vector<cFieldText> RecordFields(const cSaveData& record, const std::vector<std::string_view>& skipped = {});

// "HEAD PATH: OLD -> NEW" for each value that differs between the two
// records; a value that only one of them has stands against "(none)".
void DiffRecordFields(const std::string& head, const cSaveData& before, const cSaveData& after,
                      const std::vector<std::string_view>& skipped, std::vector<std::string>& lines);

}  // namespace velmora::inspect
