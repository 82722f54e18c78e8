#include "project/StreamParts.h"

namespace velmora {
namespace {

template <class T>
void LoadPlain(std::vector<T>& part, cDataFile& file) {
  const int32_t count = ReadKeepingCount(file, sizeof(T));
  if (count < 1) return;
  std::vector<T> read(static_cast<size_t>(count));
  if (!file.Read(read.data(), read.size() * sizeof(T))) return;
  part = std::move(read);
}

template <class T>
void SavePlain(const std::vector<T>& part, cDataFile& file) {
  file.WriteInt32(static_cast<int32_t>(part.size()));
  file.Write(part.data(), part.size() * sizeof(T));
}

}  // namespace

int32_t ReadKeepingCount(cDataFile& file, uint64_t minBytesPerElement) {
  int32_t count = 0;
  if (!file.ReadInt32(count) || count < 1) return 0;
  if (static_cast<uint64_t>(count) > file.Remaining() / minBytesPerElement) {
    file.MarkDamaged();
    return 0;
  }
  return count;
}

void LoadBytes(std::vector<uint8_t>& part, cDataFile& file) { LoadPlain(part, file); }
void SaveBytes(const std::vector<uint8_t>& part, cDataFile& file) { SavePlain(part, file); }
void LoadInts(std::vector<int32_t>& part, cDataFile& file) { LoadPlain(part, file); }
void SaveInts(const std::vector<int32_t>& part, cDataFile& file) { SavePlain(part, file); }

void LoadStrings(std::vector<std::string>& part, cDataFile& file) {
  // An empty string still takes its length word.
  const int32_t count = ReadCount(file, 4);
  part.assign(static_cast<size_t>(count), std::string());
  for (std::string& text : part) {
    if (!ReadStreamString(file, text)) return;
  }
}

void SaveStrings(std::vector<std::string>& part, cDataFile& file) {
  file.WriteInt32(static_cast<int32_t>(part.size()));
  for (std::string& text : part) WriteStreamString(file, text);
}

}  // namespace velmora
