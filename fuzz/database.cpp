// The ten lists of data\database\: the first byte picks the list, the rest
// is its file, read and written back as the project load does.
#include "project/Database.h"
#include "support/FuzzProject.h"

using namespace velmora;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  fuzz::EnterProject();
  const eDbList list = static_cast<eDbList>(data[0] % kDbListCount);
  cEdDatabase database;
  if (database.LoadList(list, fuzz::PlaceInput("data\\fuzz.dat", data + 1, size - 1))) {
    database.List(list).SaveFile("data\\fuzz.out");
  }
  return 0;
}
