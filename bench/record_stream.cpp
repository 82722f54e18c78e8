// Writes and reads a million small records through the record stream and
// the same bytes through plain stdio, and prints how far apart they are.
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "core/SaveData.h"

namespace {

using namespace velmora;

constexpr int kRecords = 1000000;

class cBenchRecord : public cSaveData {
 public:
  int32_t m_anValue[4] = {};
  int16_t m_sA = 0, m_sB = 0;
  uint8_t m_bFlag = 0;
  double m_dRate = 0;
  std::string m_strName;

 protected:
  void Register(uint32_t) override {
    ClearLists();
    for (int32_t& value : m_anValue) Add4(&value, 1, "m_anValue");
    Add2(VFIELD(m_sA));
    Add2(VFIELD(m_sB));
    Add1(VFIELD(m_bFlag));
    Add8(VFIELD(m_dRate));
    AddString(VSTRING(m_strName));
  }
};

double Ms(std::chrono::steady_clock::time_point since) {
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - since).count();
}

std::vector<cBenchRecord> MakeRecords() {
  std::vector<cBenchRecord> records(kRecords);
  for (int i = 0; i < kRecords; ++i) {
    cBenchRecord& r = records[static_cast<size_t>(i)];
    for (int k = 0; k < 4; ++k) r.m_anValue[k] = i * 4 + k;
    r.m_sA = static_cast<int16_t>(i);
    r.m_bFlag = static_cast<uint8_t>(i & 1);
    r.m_dRate = i * 0.5;
    r.m_strName = "name" + std::to_string(i % 1000);
  }
  return records;
}

// The same bytes as the stream writes, one fwrite per record.
void PlainWrite(const std::vector<cBenchRecord>& records, const char* path) {
  std::FILE* file = std::fopen(path, "wb");
  std::setvbuf(file, nullptr, _IOFBF, 1 << 16);
  uint32_t version = kCurrentVersion;
  int32_t count = kRecords;
  std::fwrite(&version, 4, 1, file);
  std::fwrite(&count, 4, 1, file);
  unsigned char buffer[128];
  for (const cBenchRecord& r : records) {
    unsigned char* p = buffer;
    auto put = [&p](const void* data, size_t size) {
      std::memcpy(p, data, size);
      p += size;
    };
    int32_t fields = 8, strings = 1;
    int32_t length = static_cast<int32_t>(r.m_strName.size()) + 1;
    put(&fields, 4);
    put(r.m_anValue, 16);
    put(&r.m_sA, 2);
    put(&r.m_sB, 2);
    put(&r.m_bFlag, 1);
    put(&r.m_dRate, 8);
    put(&strings, 4);
    put(&length, 4);
    put(r.m_strName.c_str(), static_cast<size_t>(length));
    std::fwrite(buffer, 1, static_cast<size_t>(p - buffer), file);
  }
  std::fclose(file);
}

void PlainRead(std::vector<cBenchRecord>& records, const char* path) {
  std::FILE* file = std::fopen(path, "rb");
  std::setvbuf(file, nullptr, _IOFBF, 1 << 16);
  uint32_t version;
  int32_t count;
  (void)!std::fread(&version, 4, 1, file);
  (void)!std::fread(&count, 4, 1, file);
  records.assign(static_cast<size_t>(count), cBenchRecord());
  unsigned char head[41];
  char text[64];
  for (cBenchRecord& r : records) {
    (void)!std::fread(head, 1, sizeof head, file);
    std::memcpy(r.m_anValue, head + 4, 16);
    std::memcpy(&r.m_sA, head + 20, 2);
    std::memcpy(&r.m_sB, head + 22, 2);
    r.m_bFlag = head[24];
    std::memcpy(&r.m_dRate, head + 25, 8);
    int32_t length;
    std::memcpy(&length, head + 37, 4);
    (void)!std::fread(text, 1, static_cast<size_t>(length), file);
    r.m_strName.assign(text);
  }
  std::fclose(file);
}

}  // namespace

int main() {
  const std::vector<cBenchRecord> source = MakeRecords();
  const std::string streamPath = "/tmp/velmora_bench_stream.dat";
  const std::string plainPath = "/tmp/velmora_bench_plain.dat";

  auto start = std::chrono::steady_clock::now();
  {
    DataFilePtr file = OpenWrite(streamPath);
    SaveVector(const_cast<std::vector<cBenchRecord>&>(source), *file);
    CloseData(file);
  }
  const double streamWrite = Ms(start);
  std::vector<cBenchRecord> streamLoaded;
  start = std::chrono::steady_clock::now();
  {
    DataFilePtr file = OpenRead(streamPath);
    LoadVector(streamLoaded, *file);
    CloseData(file);
  }
  const double streamRead = Ms(start);

  start = std::chrono::steady_clock::now();
  PlainWrite(source, plainPath.c_str());
  const double plainWrite = Ms(start);
  std::vector<cBenchRecord> plainLoaded;
  start = std::chrono::steady_clock::now();
  PlainRead(plainLoaded, plainPath.c_str());
  const double plainRead = Ms(start);

  bool same = streamLoaded.size() == source.size() && plainLoaded.size() == source.size() &&
              IsSame(streamLoaded.back(), source.back()) && IsSame(plainLoaded.back(), source.back());
  ::unlink(streamPath.c_str());
  ::unlink(plainPath.c_str());
  if (!same) {
    std::fprintf(stderr, "round trip differs\n");
    return 1;
  }

  const double ratio = (streamWrite + streamRead) / (plainWrite + plainRead);
  std::printf("BENCH stream_write_ms %.1f ms\n", streamWrite);
  std::printf("BENCH stream_read_ms %.1f ms\n", streamRead);
  std::printf("BENCH plain_write_ms %.1f ms\n", plainWrite);
  std::printf("BENCH plain_read_ms %.1f ms\n", plainRead);
  std::printf("BENCH stream_vs_plain_ratio %.2f x target <= 3\n", ratio);
  std::printf("BENCH record_overhead_bytes %zu bytes target <= 8\n", sizeof(cSaveData));
  return 0;
}
