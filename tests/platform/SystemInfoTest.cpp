#include <gtest/gtest.h>

#include "platform/SystemInfo.h"

namespace velmora {
namespace {

TEST(CpuInfoTest, TabPaddedX86KeysOfTheFirstProcessorCount) {
  cSystemFacts facts;
  ParseCpuInfo(
      "processor\t: 0\nvendor_id\t: AuthenticAMD\ncpu family\t: 26\nmodel name\t: AMD EPYC\ncpu MHz\t\t: 2096.004\n"
      "cpu cores\t: 2\n\nprocessor\t: 1\nvendor_id\t: Other\nmodel name\t: Second\ncpu MHz\t\t: 3000.0\n",
      facts);
  EXPECT_EQ(facts.cpuVendor, "AuthenticAMD");
  EXPECT_EQ(facts.cpuBrand, "AMD EPYC");
  EXPECT_EQ(facts.cpuMhz, 2096);
}

TEST(CpuInfoTest, MachinesWithoutModelNameFallBackToTheirOwnKeys) {
  cSystemFacts arm;
  ParseCpuInfo(
      "processor\t: 0\nBogoMIPS\t: 48.00\nCPU implementer\t: 0x41\nCPU part\t: 0xd08\n\n"
      "Hardware\t: BCM2835\nModel\t\t: Raspberry Pi 4\n",
      arm);
  EXPECT_EQ(arm.cpuVendor, "0x41");
  EXPECT_EQ(arm.cpuBrand, "BCM2835");
  EXPECT_EQ(arm.cpuMhz, 0);

  // Old ARM kernels name the core before the board; the core wins.
  cSystemFacts armv7;
  ParseCpuInfo("Hardware\t: BCM2709\nProcessor\t: ARMv7 Processor rev 4 (v7l)\n", armv7);
  EXPECT_EQ(armv7.cpuBrand, "ARMv7 Processor rev 4 (v7l)");

  cSystemFacts power;
  ParseCpuInfo("processor\t: 0\ncpu\t\t: POWER9, altivec supported\nclock\t\t: 3425.000000MHz\n", power);
  EXPECT_EQ(power.cpuBrand, "POWER9, altivec supported");
  EXPECT_EQ(power.cpuMhz, 3425);

  cSystemFacts empty;
  ParseCpuInfo("model name\t:\nnonsense without colon\n", empty);
  EXPECT_EQ(empty.cpuBrand, "");
}

TEST(CpuInfoTest, ThisMachineNamesItsProcessor) {
  const cSystemFacts facts = ReadSystemFacts();
  EXPECT_FALSE(facts.cpuVendor.empty() && facts.cpuBrand.empty());
}

}  // namespace
}  // namespace velmora
