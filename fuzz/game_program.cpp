// Any file of the project folder as the game-program search looks at it:
// string resources of a Windows program, notes of an ELF one.
#include "core/GameProgram.h"
#include "support/FuzzProject.h"

using namespace velmora;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz::EnterProject();
  IsGameProgram(fuzz::PlaceInput("fuzz.exe", data, size));
  return 0;
}
