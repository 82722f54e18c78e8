#pragma once
#include <string>

#include "platform/WholeFile.h"

namespace velmora {

// Reads a whole wave or MIDI file at a stored path; false when it can't be
// read.
bool ReadSoundFile(const std::string& path, cWholeFile& file);

}  // namespace velmora
