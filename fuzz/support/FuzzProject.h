#pragma once
#include <cstddef>
#include <cstdint>
#include <string>

namespace velmora::fuzz {

// Every target runs inside a sample project, loaded as the editor loads it,
// so the checks that follow a read meet a real database and palette. The
// project is made once per process (in LLVMFuzzerInitialize, so its load
// doesn't count against the time limit of the first input) in a folder of
// its own on a memory file system where there is one, and the folder goes
// when the process ends.
// Message boxes are answered at once, and a stop that ends the process is
// a finding: the editor would have ended there.
void EnterProject();

// Writes the input where the loader under test looks for it; gives the
// stored path.
std::string PlaceInput(const std::string& stored, const uint8_t* data, size_t size);

}  // namespace velmora::fuzz

namespace velmora::fuzz {

// The record loaded from the input the way the project load reads it, and
// written back as the load writes back what it has upgraded.
template <class Record>
void LoadAndSaveBack(const uint8_t* data, size_t size) {
  EnterProject();
  Record record;
  if (record.LoadFile(PlaceInput("data\\fuzz.dat", data, size))) record.SaveFile("data\\fuzz.out");
}

}  // namespace velmora::fuzz
