// A stage file read as the start-up reads the last stage, after the check
// that repairs a file cut short, and saved again. Opening from the menu
// runs the same read on a worker thread, which would only slow the fuzzer.
#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "support/FuzzProject.h"

using namespace velmora;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz::EnterProject();
  const std::string path = fuzz::PlaceInput("data\\stg4\\fuzz.stg4_950", data, size);
  CheckStageFile(path);
  cStage stage;
  if (stage.LoadWholeFile(path)) stage.SaveFile("data\\fuzz.out");
  return 0;
}
