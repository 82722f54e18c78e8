#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

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

TEST_F(SafeWrite, ABackupLeftByAKilledSaveDoesNotStandInTheWay) {
  MakeDirectory("work");
  WriteText("work/map.dat", "left by a killed save");
  ASSERT_TRUE(WriteFileSafely("map.dat", Writing("new"), {"work\\map.dat.new", "work\\map.dat"}));
  EXPECT_EQ(ReadText("map.dat"), "new");
  EXPECT_FALSE(FileExists("work\\map.dat"));
}

TEST_F(SafeWrite, APipeOrDeviceIsWrittenThroughAndNeverReplacedByAFile) {
  ASSERT_EQ(::mkfifo("pipe", 0600), 0);
  std::string writtenTo;
  auto noting = [&writtenTo](const std::string& to) {
    writtenTo = to;  // opening the pipe would wait for a reader
    return true;
  };
  EXPECT_TRUE(WriteFileSafely("pipe", noting, PlacesBeside("pipe")));
  EXPECT_EQ(writtenTo, "pipe");
  struct stat pipe {};
  ASSERT_EQ(::stat("pipe", &pipe), 0);
  EXPECT_TRUE(S_ISFIFO(pipe.st_mode));
}

// /dev/shm is a file system of its own on most machines: a rename from
// there fails and the copy beside the target has to take its place.
TEST_F(SafeWrite, AFreshFileOnAnotherFileSystemIsCopiedBesideTheTarget) {
  struct stat shm {}, here {};
  if (::stat("/dev/shm", &shm) != 0 || ::stat(".", &here) != 0 || shm.st_dev == here.st_dev) {
    GTEST_SKIP() << "no second file system at /dev/shm";
  }
  const std::string fresh = "/dev/shm/velmora-safewrite-" + std::to_string(::getpid());
  ASSERT_TRUE(WriteFileSafely("map.dat", Writing("new"), {fresh, std::string()}));
  EXPECT_EQ(ReadText("map.dat"), "new");
  EXPECT_FALSE(FileExists(fresh));
  EXPECT_FALSE(FileExists("map.dat.new"));
}

}  // namespace
}  // namespace velmora
