#pragma once
#include <gtest/gtest.h>

#include <cstdint>

#include "core/SaveData.h"
#include "support/TempProject.h"

namespace velmora::testing {

// While alive, records are written in the layout of an older version, the
// way that version wrote its files.
class cWriteVersion {
 public:
  explicit cWriteVersion(uint32_t version) : m_saved(g_nAppVersion) { g_nAppVersion = version; }
  ~cWriteVersion() { g_nAppVersion = m_saved; }
  cWriteVersion(const cWriteVersion&) = delete;
  cWriteVersion& operator=(const cWriteVersion&) = delete;

 private:
  uint32_t m_saved;
};

// Writes a record as a file of `version` and reads it back into a fresh
// record, as the editor opens such a file.
template <class T>
T ReadAsVersion(uint32_t version, const T& record) {
  cTempProject project;
  {
    cWriteVersion old(version);
    T copy = record;
    EXPECT_EQ(copy.SaveFile("old.dat"), 1);
  }
  T loaded;
  EXPECT_EQ(loaded.LoadFile("old.dat"), 1);
  EXPECT_EQ(g_nFileVersion, version);
  return loaded;
}

}  // namespace velmora::testing
