#include "platform/SystemMemory.h"

#include <cstdio>
#include <cstring>

namespace velmora {
namespace {

uint64_t ReadMeminfoKb(const char* key) {
  FILE* file = std::fopen("/proc/meminfo", "r");
  if (!file) return 0;
  char line[256];
  unsigned long long value = 0;
  const size_t keyLength = std::strlen(key);
  while (std::fgets(line, sizeof line, file)) {
    if (std::strncmp(line, key, keyLength) == 0 && line[keyLength] == ':') {
      std::sscanf(line + keyLength + 1, "%llu", &value);
      break;
    }
  }
  std::fclose(file);
  return value * 1024ull;
}

}  // namespace

uint64_t FreePhysicalMemory() { return ReadMeminfoKb("MemAvailable"); }

uint64_t TotalPhysicalMemory() { return ReadMeminfoKb("MemTotal"); }

}  // namespace velmora
