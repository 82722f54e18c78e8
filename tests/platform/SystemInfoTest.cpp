#include <gtest/gtest.h>

#include "platform/SystemInfo.h"

namespace velmora {
namespace {

// Vendor, brand and clock that a cpuinfo text gives, as one line to compare.
std::string CpuOf(const std::string& cpuinfo) {
  cSystemFacts facts;
  ParseCpuInfo(cpuinfo, facts);
  return facts.cpuVendor + "|" + facts.cpuBrand + "|" + std::to_string(facts.cpuMhz);
}

TEST(CpuInfoTest, TabPaddedKeysOfTheFirstProcessorCount) {
  EXPECT_EQ(CpuOf("processor\t: 0\nvendor_id\t: AuthenticAMD\ncpu family\t: 26\nmodel name\t: AMD EPYC\n"
                  "cpu MHz\t\t: 2096.004\ncpu cores\t: 2\n\n"
                  "processor\t: 1\nvendor_id\t: Other\nmodel name\t: Second\ncpu MHz\t\t: 3000.0\n"),
            "AuthenticAMD|AMD EPYC|2096");
}

TEST(CpuInfoTest, MachinesWithoutModelNameFallBackToTheirOwnKeys) {
  EXPECT_EQ(CpuOf("processor\t: 0\nBogoMIPS\t: 48.00\nCPU implementer\t: 0x41\nCPU part\t: 0xd08\n\n"
                  "Hardware\t: BCM2835\nModel\t\t: Raspberry Pi 4\n"),
            "0x41|BCM2835|0");
  // Old ARM kernels name the core before the board; the core wins.
  EXPECT_EQ(CpuOf("Hardware\t: BCM2709\nProcessor\t: ARMv7 Processor rev 4 (v7l)\n"),
            "|ARMv7 Processor rev 4 (v7l)|0");
  EXPECT_EQ(CpuOf("processor\t: 0\ncpu\t\t: POWER9, altivec supported\nclock\t\t: 3425.000000MHz\n"),
            "|POWER9, altivec supported|3425");
  EXPECT_EQ(CpuOf("model name\t:\nnonsense without colon\n"), "||0");
}

TEST(CpuInfoTest, ThisMachineNamesItsProcessor) {
  const cSystemFacts facts = ReadSystemFacts();
  EXPECT_FALSE(facts.cpuVendor.empty() && facts.cpuBrand.empty());
}

}  // namespace
}  // namespace velmora
