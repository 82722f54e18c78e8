#pragma once
#include <cstdint>
#include <string>
#include <vector>

namespace velmora {

// Reads a whole sound file at a stored path; false when it can't be read.
bool ReadSoundFile(const std::string& path, std::vector<uint8_t>& bytes);
// Writes a whole file at a stored path; false when it can't be written.
bool WriteSoundFile(const std::string& path, const std::vector<uint8_t>& bytes);

}  // namespace velmora
