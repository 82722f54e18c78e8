#include "platform/SystemInfo.h"

#include <sys/statvfs.h>
#include <sys/utsname.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "platform/SystemMemory.h"

namespace velmora {
namespace {

std::string Trimmed(const char* text) {
  std::string value = text;
  while (!value.empty() && (value.back() == '\n' || value.back() == ' ')) value.pop_back();
  size_t start = value.find_first_not_of(' ');
  return start == std::string::npos ? std::string() : value.substr(start);
}

// The first value of each wanted key in /proc/cpuinfo.
void ReadCpu(cSystemFacts& facts) {
  std::FILE* file = std::fopen("/proc/cpuinfo", "r");
  if (!file) return;
  char line[512];
  while (std::fgets(line, sizeof line, file)) {
    char* colon = std::strchr(line, ':');
    if (!colon) continue;
    std::string key(line, static_cast<size_t>(colon - line));
    key = Trimmed(key.c_str());
    std::string value = Trimmed(colon + 1);
    if (key == "vendor_id" && facts.cpuVendor.empty()) facts.cpuVendor = value;
    else if (key == "model name" && facts.cpuBrand.empty()) facts.cpuBrand = value;
    else if (key == "cpu MHz" && facts.cpuMhz == 0) facts.cpuMhz = std::atoi(value.c_str());
  }
  std::fclose(file);
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
