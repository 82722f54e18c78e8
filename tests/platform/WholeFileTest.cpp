#include <gtest/gtest.h>

#include "platform/WholeFile.h"
#include "support/TempProject.h"

namespace velmora {
namespace {

using testing::cTempProject;
using testing::MakeDirs;
using testing::ReadBytes;

TEST(WholeFileTest, ReadsWithinTheBoundAndRefusesWhatCantBeAFile) {
  cTempProject project;
  MakeDirs("Data");
  ASSERT_TRUE(WriteWholeFile("data\\a.bin", {1, 2, 3}));
  EXPECT_EQ(ReadBytes("Data/a.bin"), (std::vector<uint8_t>{1, 2, 3}));

  cWholeFile file;
  ASSERT_EQ(ReadWholeFile("data\\a.bin", file, 3), eReadResult::Ok);
  EXPECT_EQ(std::vector<uint8_t>(file.data.get(), file.data.get() + file.size), (std::vector<uint8_t>{1, 2, 3}));
  EXPECT_EQ(ReadWholeFile("data\\a.bin", file, 2), eReadResult::TooLarge);
  EXPECT_EQ(file.data, nullptr);
  EXPECT_EQ(ReadWholeFile("data\\none.bin", file, 3), eReadResult::Missing);
  // File systems give a folder different sizes; none reads as a file.
  EXPECT_NE(ReadWholeFile("data", file, 1 << 30), eReadResult::Ok) << "a folder";
}

TEST(WholeFileTest, AWriteThatDoesNotReachTheDiskFails) {
  EXPECT_FALSE(WriteWholeFile("/dev/full", std::vector<uint8_t>(100, 7)));
  EXPECT_FALSE(WriteWholeFile("no\\such\\folder.bin", {1}));
}

}  // namespace
}  // namespace velmora
