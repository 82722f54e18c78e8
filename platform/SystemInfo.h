#pragma once
#include <cstdint>
#include <string>

namespace velmora {

// Facts about the running machine for the report log and for telling
// whether a stored measurement still fits the system.
struct cSystemFacts {
  std::string osName;       // e.g. "Linux 6.1.0-18-amd64"
  int osMajor = 0;          // kernel major and minor version
  int osMinor = 0;
  std::string cpuVendor;
  std::string cpuBrand;
  int cpuMhz = 0;           // as the kernel reports it, else the top cpufreq; no busy wait
  uint64_t memTotal = 0;    // bytes
  uint64_t memFree = 0;
  uint64_t swapTotal = 0;
  uint64_t swapFree = 0;
  uint64_t diskFree = 0;    // on the current directory's file system
};

cSystemFacts ReadSystemFacts();

// Vendor, brand and clock from the text of /proc/cpuinfo. Machines name
// these differently ("model name" on x86, "Processor" or "Hardware" on
// ARM, "cpu" on POWER, "uarch" on RISC-V); the first key found in the
// table's order wins, and a missing vendor or brand takes what is there.
void ParseCpuInfo(const std::string& text, cSystemFacts& facts);

}  // namespace velmora
