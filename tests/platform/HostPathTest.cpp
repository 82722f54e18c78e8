#include <algorithm>
#include <gtest/gtest.h>

#include "platform/FileSystem.h"
#include "platform/HostPath.h"
#include "platform/TextCodec.h"
#include "support/TempProject.h"

namespace velmora {
namespace {

using testing::cTempProject;
using testing::MakeDirs;
using testing::ReadText;
using testing::WriteText;

TEST(HostPathTest, StoredPathsMatchDiskCaseAndKeepNewNamesAsStored) {
  cTempProject project;
  MakeDirs("Data/STG4");
  WriteText("Data/STG4/a.Stg4_950", "x");
  EXPECT_EQ("Data/STG4/a.Stg4_950", HostPath("data\\stg4\\A.STG4_950"));
  EXPECT_EQ("Data/STG4/New.stg4_950", HostPath("data\\stg4\\New.stg4_950"));
  EXPECT_EQ("Data/STG4/", HostPath("DATA\\stg4\\"));
  EXPECT_EQ("./bmp/x.bmp", HostPath(".\\bmp\\x.bmp"));
  EXPECT_EQ("/tmp", HostPath("/tmp"));
  EXPECT_EQ("data\\stg4\\a", StoredPath("data/stg4/a"));
  EXPECT_EQ("x", ReadText(HostPath("data\\stg4\\a.stg4_950")));
}

TEST(HostPathTest, FileOperationsWorkOnStoredPaths) {
  cTempProject project;
  MakeDirs("Work");
  WriteText("Work/A.txt", "a");
  EXPECT_TRUE(FileExists("work\\a.txt"));
  EXPECT_FALSE(IsDirectory("work\\a.txt"));
  EXPECT_TRUE(CopyFileTo("work\\a.txt", "work\\b.txt", false));
  EXPECT_FALSE(CopyFileTo("work\\a.txt", "work\\b.txt", false));
  WriteText("Work/c.txt", "c");
  EXPECT_TRUE(MoveFileReplacing("work\\c.txt", "work\\b.txt"));
  EXPECT_EQ("c", ReadText("Work/b.txt"));
  EXPECT_FALSE(FileExists("work\\c.txt"));
  EXPECT_TRUE(RemoveFile("WORK\\B.TXT"));
  EXPECT_EQ(1, FileSize("work\\a.txt"));
  EXPECT_EQ(-1, FileSize("work\\none"));
}

TEST(HostPathTest, EmptyFolderListsTheCurrentDirectory) {
  cTempProject project;
  MakeDirs("Stage");
  WriteText("a.txt", "a");
  std::vector<cDirEntry> entries = ListDirectory("");
  std::sort(entries.begin(), entries.end(), [](const cDirEntry& l, const cDirEntry& r) { return l.name < r.name; });
  ASSERT_EQ(2u, entries.size());
  EXPECT_EQ("Stage", entries[0].name);
  EXPECT_TRUE(entries[0].isDirectory);
  EXPECT_EQ("a.txt", entries[1].name);
  EXPECT_FALSE(entries[1].isDirectory);
}

TEST(TextCodecTest, Cp932RoundTripsAndCountsTwoByteCharactersOnce) {
  const std::string sjis = ToCp932("エラーabc");
  EXPECT_EQ(9u, sjis.size());
  EXPECT_EQ(6, Cp932CharCount(sjis));
  EXPECT_EQ("エラーabc", ToUtf8(sjis));
  // A backslash byte as the second half of a character stays inside it.
  const std::string so = ToCp932("ソ");
  ASSERT_EQ(2u, so.size());
  EXPECT_EQ('\x5c', so[1]);
  EXPECT_EQ(1, Cp932CharCount(so));
  EXPECT_EQ("?", ToUtf8("\x80"));
}

}  // namespace
}  // namespace velmora
