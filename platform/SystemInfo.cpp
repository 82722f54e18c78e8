#include "platform/SystemInfo.h"

#include <sys/statvfs.h>
#include <sys/utsname.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <sstream>

#include "platform/SystemMemory.h"

namespace velmora {
namespace {

constexpr char kWhitespace[] = " \t\r\n";

// /proc/cpuinfo pads its keys with tabs.
std::string Trimmed(const std::string& text) {
  const size_t start = text.find_first_not_of(kWhitespace);
  if (start == std::string::npos) return std::string();
  return text.substr(start, text.find_last_not_of(kWhitespace) - start + 1);
}

enum eCpuFact { kVendor, kBrand, kMhz };

// Keys per fact, the most telling first.
struct cCpuKey {
  const char* key;
  eCpuFact fact;
  int rank;
};
constexpr cCpuKey kCpuKeys[] = {
    {"vendor_id", kVendor, 0},      {"CPU implementer", kVendor, 1}, {"mvendorid", kVendor, 2},
    {"model name", kBrand, 0},      {"Processor", kBrand, 1},        {"Hardware", kBrand, 2},
    {"cpu model", kBrand, 3},       {"cpu", kBrand, 4},              {"uarch", kBrand, 5},
    {"isa", kBrand, 6},             {"cpu MHz", kMhz, 0},            {"clock", kMhz, 1},
};
constexpr int kNoRank = 1000;

const cCpuKey* FindCpuKey(const std::string& key) {
  for (const cCpuKey& entry : kCpuKeys) {
    if (key == entry.key) return &entry;
  }
  return nullptr;
}

// The highest clock that the frequency driver allows, for machines whose
// cpuinfo has none.
int CpufreqMhz() {
  std::ifstream file("/sys/devices/system/cpu/cpu0/cpufreq/cpuinfo_max_freq");
  long long khz = 0;
  return file >> khz && khz > 0 ? static_cast<int>(khz / 1000) : 0;
}

void ReadCpu(cSystemFacts& facts) {
  std::ifstream file("/proc/cpuinfo");
  if (file) {
    std::ostringstream text;
    text << file.rdbuf();
    ParseCpuInfo(text.str(), facts);
  }
  if (facts.cpuMhz == 0) facts.cpuMhz = CpufreqMhz();
}

uint64_t MeminfoBytes(const char* key) {
  std::FILE* file = std::fopen("/proc/meminfo", "r");
  if (!file) return 0;
  char line[256];
  unsigned long long kb = 0;
  const size_t length = std::strlen(key);
  while (std::fgets(line, sizeof line, file)) {
    if (std::strncmp(line, key, length) == 0 && line[length] == ':') {
      std::sscanf(line + length + 1, "%llu", &kb);
      break;
    }
  }
  std::fclose(file);
  return kb * 1024ull;
}

}  // namespace

void ParseCpuInfo(const std::string& text, cSystemFacts& facts) {
  int ranks[] = {kNoRank, kNoRank, kNoRank};
  std::istringstream lines(text);
  std::string line;
  while (std::getline(lines, line)) {
    const size_t colon = line.find(':');
    if (colon == std::string::npos) continue;
    const cCpuKey* entry = FindCpuKey(Trimmed(line.substr(0, colon)));
    const std::string value = Trimmed(line.substr(colon + 1));
    if (!entry || value.empty() || entry->rank >= ranks[entry->fact]) continue;
    ranks[entry->fact] = entry->rank;
    if (entry->fact == kVendor) facts.cpuVendor = value;
    if (entry->fact == kBrand) facts.cpuBrand = value;
    // "clock" on POWER reads "3425.000000MHz".
    if (entry->fact == kMhz) facts.cpuMhz = std::atoi(value.c_str());
  }
}

cSystemFacts ReadSystemFacts() {
  cSystemFacts facts;
  struct utsname name;
  if (::uname(&name) == 0) {
    facts.osName = std::string(name.sysname) + " " + name.release;
    std::sscanf(name.release, "%d.%d", &facts.osMajor, &facts.osMinor);
  }
  ReadCpu(facts);
  facts.memTotal = TotalPhysicalMemory();
  facts.memFree = FreePhysicalMemory();
  facts.swapTotal = MeminfoBytes("SwapTotal");
  facts.swapFree = MeminfoBytes("SwapFree");
  struct statvfs disk;
  if (::statvfs(".", &disk) == 0) facts.diskFree = static_cast<uint64_t>(disk.f_bavail) * disk.f_frsize;
  return facts;
}

}  // namespace velmora
