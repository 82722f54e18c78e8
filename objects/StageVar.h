#pragma once
#include <string>

#include "core/SaveData.h"

namespace velmora {

// The name of one variable, common or of a stage. Element 0 of a name list
// is never shown; element n names variable n.
class cStageVar final : public cSaveData {
 public:
  std::string m_strName;

  bool operator==(const cStageVar& other) const { return m_strName == other.m_strName; }

 protected:
  void Register(uint32_t /*version*/) override {
    ClearLists();
    AddString(VSTRING(m_strName));
  }
};

}  // namespace velmora
