#pragma once
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace velmora {

// A whole file in memory, for formats that are parsed from a buffer.
struct cWholeFile {
  std::unique_ptr<uint8_t[]> data;
  size_t size = 0;
};

enum class eReadResult { Ok, Missing, TooLarge, OutOfMemory };  // Missing: absent or unreadable

// Reads the file at a stored path. A file over `maxBytes` is refused before
// anything is allocated for it, so a damaged or foreign file can't make the
// editor ask for more memory than the caller expects of its format.
eReadResult ReadWholeFile(const std::string& stored, cWholeFile& out, long long maxBytes);

// False when the file can't be made or not every byte reached the disk.
bool WriteWholeFile(const std::string& stored, const std::vector<uint8_t>& bytes);

}  // namespace velmora
