// A stage palette file (data\plt4\*.plt4) read over a stage, as the load
// of a stage palette does.
#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "support/FuzzProject.h"

using namespace velmora;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz::EnterProject();
  // The editor reads a palette only into a stage that it has set up, and
  // saves only such a stage: one that is just constructed has no layers.
  cStage stage;
  stage.InitDefault();
  if (ReadStagePaletteFile(fuzz::PlaceInput("data\\plt4\\fuzz.plt4", data, size), stage)) {
    stage.SaveFile("data\\fuzz.out");
  }
  return 0;
}
