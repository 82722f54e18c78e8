// Feeds arbitrary bytes to the record stream reader: a record with scalars,
// strings and a nested vector of records, read at the version the bytes name.
#include <cstdint>
#include <cstring>

#include "core/SaveData.h"
#include "support/FuzzProject.h"
#include "../tests/support/TestRecords.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace velmora;
  fuzz::EnterProject();
  if (size < 4) return 0;
  uint32_t version;
  std::memcpy(&version, data, 4);
  if (version > g_nAppVersion) return 0;
  g_nFileVersion = version;
  g_bNoSave = 0;
  DataFilePtr file = cDataFile::FromMemory(data + 4, size - 4);
  if (!file) return 0;
  testing::cSampleHolder holder;
  holder.Load(*file);
  return 0;
}
