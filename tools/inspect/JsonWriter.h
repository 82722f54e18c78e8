#pragma once
#include <string>

#include "core/SaveData.h"

namespace velmora::inspect {

// A record as JSON: its members by name in file order, nested vectors as
// arrays, records held by pointer as objects (null when absent). Strings are
// shown in UTF-8.
std::string RecordJson(const cSaveData& record, int indent = 0);
std::string JsonString(const std::string& utf8);
// A scalar field's value as the dump shows it; "[a, b]" for a field of
// several elements.
std::string FieldValueText(const cSaveData& record, const cSaveField& field);

}  // namespace velmora::inspect
