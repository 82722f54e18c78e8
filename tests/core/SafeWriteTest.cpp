#include <gtest/gtest.h>

#include "core/SafeWrite.h"
#include "platform/FileSystem.h"
#include "platform/HostPath.h"
#include "support/TempProject.h"

namespace velmora {
namespace {

using testing::ReadText;
using testing::WriteText;

auto Writing(const std::string& text) {
  return [text](const std::string& to) {
    WriteText(HostPath(to), text);
    return true;
  };
}

class SafeWrite : public ::testing::Test {
 protected:
  void SetUp() override { WriteText("map.dat", "old"); }
  testing::cTempProject project;
};

TEST_F(SafeWrite, TheNewFileTakesThePlaceOfTheOldAndNothingIsLeftBeside) {
  ASSERT_TRUE(WriteFileSafely("map.dat", Writing("new"), PlacesBeside("map.dat")));
  EXPECT_EQ(ReadText("map.dat"), "new");
  EXPECT_FALSE(FileExists("map.dat.new"));

  MakeDirectory("work");
  ASSERT_TRUE(WriteFileSafely("map.dat", Writing("newer"), {"work\\map.dat.new", "work\\map.dat"}));
  EXPECT_EQ(ReadText("map.dat"), "newer");
  EXPECT_FALSE(FileExists("work\\map.dat")) << "the backup goes once the new file stands";
  EXPECT_FALSE(FileExists("work\\map.dat.new"));
}

TEST_F(SafeWrite, AWriteThatFailsLeavesTheOldFileAsItWas) {
  auto failing = [](const std::string& to) {
    WriteText(HostPath(to), "half");
    return false;
  };
  EXPECT_FALSE(WriteFileSafely("map.dat", failing, PlacesBeside("map.dat")));
  EXPECT_EQ(ReadText("map.dat"), "old");
  EXPECT_FALSE(FileExists("map.dat.new"));

  EXPECT_FALSE(WriteFileSafely("map.dat", Writing("new"), PlacesBeside("missing\\map.dat")))
      << "no room for the new file: nothing moves";
  EXPECT_EQ(ReadText("map.dat"), "old");
}

}  // namespace
}  // namespace velmora
