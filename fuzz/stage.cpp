// A stage file read by the worker the editor opens stages with, after the
// check that repairs a file cut short, and saved again.
#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "stage/StageLoader.h"
#include "support/FuzzProject.h"

using namespace velmora;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz::EnterProject();
  cStage stage;
  if (LoadStage(fuzz::PlaceInput("data\\stg4\\fuzz.stg4_950", data, size), stage) == eStageLoad::Loaded) {
    stage.SaveFile("data\\fuzz.out");
  }
  return 0;
}
