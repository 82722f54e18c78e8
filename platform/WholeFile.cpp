#include "platform/WholeFile.h"

#include <cstdio>
#include <new>

#include "platform/FileSystem.h"

namespace velmora {

eReadResult ReadWholeFile(const std::string& stored, cWholeFile& out, long long maxBytes) {
  out = cWholeFile{};
  std::FILE* file = OpenFile(stored, "rb");
  if (!file) return eReadResult::Missing;
  eReadResult result = eReadResult::Ok;
  long long size = -1;
  if (std::fseek(file, 0, SEEK_END) == 0) size = std::ftell(file);
  if (size < 0 || std::fseek(file, 0, SEEK_SET) != 0) {
    result = eReadResult::Missing;
  } else if (size > maxBytes) {
    result = eReadResult::TooLarge;
  } else {
    out.data.reset(new (std::nothrow) uint8_t[static_cast<size_t>(size) + 1]);
    if (!out.data) result = eReadResult::OutOfMemory;
    else out.size = std::fread(out.data.get(), 1, static_cast<size_t>(size), file);
  }
  // A folder opens like a file on this system and fails only when read.
  if (result == eReadResult::Ok && std::ferror(file)) {
    out = cWholeFile{};
    result = eReadResult::Missing;
  }
  std::fclose(file);
  return result;
}

bool WriteWholeFile(const std::string& stored, const std::vector<uint8_t>& bytes) {
  std::FILE* file = OpenFile(stored, "wb");
  if (!file) return false;
  const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
  return std::fclose(file) == 0 && written;
}

}  // namespace velmora
