#include <gtest/gtest.h>

#include "core/SaveData.h"
#include "support/TempProject.h"
#include "support/TestRecords.h"

namespace velmora {
namespace {

using testing::cBytes;
using testing::cSampleHolder;
using testing::cSampleRecord;
using testing::cTempProject;
using testing::ReadBytes;
using testing::WriteBytes;

// The bytes of one cSampleRecord in the layout of `version`, with the
// values a test cares about and zeros elsewhere.
cBytes SampleBytes(uint32_t version, int32_t life, const std::string& name, int32_t added = 0) {
  cBytes bytes;
  int32_t entries = 5 + (version < 200) + (version >= 300) + (version >= 100 && version < 400);
  bytes.I32(entries).I32(life);
  if (version < 200) bytes.I32(777);
  bytes.I16(3).U8(1).F64(0.5).I32(1).I32(2).I32(3);
  if (version >= 300) bytes.I32(added);
  if (version >= 100 && version < 400) bytes.I32(9);
  bytes.I32(version < 200 ? 3 : 2).Str(name);
  if (version < 200) bytes.Str("gone");
  return bytes.Str("kept");
}

std::vector<uint8_t> FileOf(uint32_t version, const cBytes& body) {
  cBytes file;
  file.U32(version).Raw(body.Data().data(), body.Data().size());
  return file.Data();
}

class SaveDataTest : public ::testing::Test {
 protected:
  void SetUp() override { g_bNoSave = 0; }
  void TearDown() override { g_bNoSave = 0; }
  cTempProject project;
};

TEST_F(SaveDataTest, StringsTakeLengthPlusOneWithTheZeroByteExceptWhenEmpty) {
  cSampleRecord record;
  record.m_strName = "abc";
  record.m_strNote = "";
  ASSERT_EQ(1, record.SaveFile("r.dat"));
  std::vector<uint8_t> bytes = ReadBytes("r.dat");
  // version, scalar block (count + 4+2+1+8+12+4 bytes), string block
  const size_t scalars = 4 + 4 + 2 + 1 + 8 + 12 + 4;
  ASSERT_EQ(4 + scalars + 4 + 8 + 4, bytes.size());
  const uint8_t* strings = bytes.data() + 4 + scalars;
  EXPECT_EQ(2, strings[0]);
  const std::vector<uint8_t> text(strings + 4, strings + 16);
  EXPECT_EQ((std::vector<uint8_t>{4, 0, 0, 0, 'a', 'b', 'c', 0, 1, 0, 0, 0}), text);
}

TEST_F(SaveDataTest, ZeroByteInsideAStringCutsTheFileAndTheMember) {
  cSampleRecord record;
  record.m_strName = std::string("ab\0cd", 5);
  ASSERT_EQ(1, record.SaveFile("r.dat"));
  EXPECT_EQ("ab", record.m_strName);
  cSampleRecord loaded;
  loaded.LoadFile("r.dat");
  EXPECT_EQ("ab", loaded.m_strName);
}

TEST_F(SaveDataTest, RoundTripKeepsEveryFieldAndWritesVersion950) {
  cSampleRecord record;
  record.m_nLife = -5;
  record.m_sSpeed = -300;
  record.m_bFlag = 200;
  record.m_dRate = 1.25;
  record.m_anParam[2] = 99;
  record.m_strName = "\x83\x65\x83\x58\x83\x67";  // テスト in CP932
  ASSERT_EQ(1, record.SaveFile("r.dat"));
  EXPECT_EQ(950u, ReadBytes("r.dat")[0] | ReadBytes("r.dat")[1] << 8);
  cSampleRecord loaded;
  ASSERT_EQ(1, loaded.LoadFile("r.dat"));
  EXPECT_TRUE(IsSame(record, loaded));
  EXPECT_EQ(99, loaded.m_anParam[2]);
  EXPECT_EQ(record.m_strName, loaded.m_strName);
}

TEST_F(SaveDataTest, NewerFilesAreRefusedAndLeftUntouched) {
  for (uint32_t version : {951u, 4294967295u}) {
    std::vector<uint8_t> original = FileOf(version, SampleBytes(950, 1234, "x"));
    WriteBytes("new.dat", original);
    cSampleRecord record;
    EXPECT_EQ(0, record.LoadFile("new.dat"));
    EXPECT_EQ(1, g_bFileTooNew);
    EXPECT_EQ(version, g_nFileVersion);
    EXPECT_EQ(10, record.m_nLife);
    EXPECT_EQ(original, ReadBytes("new.dat"));
  }
  WriteBytes("ok.dat", FileOf(950, SampleBytes(950, 1234, "x")));
  cSampleRecord record;
  EXPECT_EQ(1, record.LoadFile("ok.dat"));
  EXPECT_EQ(0, g_bFileTooNew);
  EXPECT_EQ(1234, record.m_nLife);
}

TEST_F(SaveDataTest, MissingFileKeepsRecordAndVersion) {
  WriteBytes("ok.dat", FileOf(321, SampleBytes(321, 1, "x")));
  cSampleRecord record;
  record.LoadFile("ok.dat");
  record.m_nLife = 55;
  EXPECT_EQ(0, record.LoadFile("missing.dat"));
  EXPECT_EQ(55, record.m_nLife);
  EXPECT_EQ(321u, g_nFileVersion);
  // An empty name opens "err".
  WriteBytes("err", FileOf(950, SampleBytes(950, 66, "e")));
  EXPECT_EQ(1, record.LoadFile(""));
  EXPECT_EQ(66, record.m_nLife);
}

TEST_F(SaveDataTest, GatesOnBothSidesOfTheirVersion) {
  struct Case {
    uint32_t version;
    int32_t expectAdded;
    int32_t expectWindow;
  };
  for (Case c : {Case{99, 42, 0}, Case{100, 42, 9}, Case{299, 42, 9}, Case{300, 5, 9}, Case{399, 5, 9},
                 Case{400, 5, 0}}) {
    WriteBytes("g.dat", FileOf(c.version, SampleBytes(c.version, 1, "n", 5)));
    cSampleRecord record;
    ASSERT_EQ(1, record.LoadFile("g.dat")) << c.version;
    EXPECT_EQ(c.expectAdded, record.m_nAdded) << c.version;
    EXPECT_EQ(c.expectWindow, record.m_nWindow) << c.version;
    EXPECT_EQ("n", record.m_strName) << c.version;
    EXPECT_EQ("kept", record.m_strNote) << c.version;
  }
}

TEST_F(SaveDataTest, RetiredFieldsAreReadIntoScratchAndNeverWritten) {
  WriteBytes("old.dat", FileOf(150, SampleBytes(150, 8, "n")));
  cSampleRecord record;
  ASSERT_EQ(1, record.LoadFile("old.dat"));
  EXPECT_EQ(777, g_nDropped);
  EXPECT_EQ("gone", g_strDropped);
  EXPECT_EQ(8, record.m_nLife);
  EXPECT_EQ(3, record.m_sSpeed);
  ASSERT_EQ(1, record.SaveFile("new.dat"));
  cBytes expected = SampleBytes(950, 8, "n", 42);
  // The scratch values never reach a new file: byte-exact with a 950 file.
  std::vector<uint8_t> written = ReadBytes("new.dat");
  std::vector<uint8_t> want = FileOf(950, expected);
  // SampleBytes writes 0 into m_nWindow's slot only below 400; at 950 it is absent.
  EXPECT_EQ(want, written);
}

TEST_F(SaveDataTest, ASecondLoadOverwritesOnlyWhatTheOlderFileHolds) {
  WriteBytes("new.dat", FileOf(950, SampleBytes(950, 1, "first", 77)));
  WriteBytes("old.dat", FileOf(250, SampleBytes(250, 2, "second")));
  cSampleRecord record;
  record.LoadFile("new.dat");
  record.LoadFile("old.dat");
  EXPECT_EQ(2, record.m_nLife);
  EXPECT_EQ(77, record.m_nAdded);
  EXPECT_EQ("second", record.m_strName);
}

TEST_F(SaveDataTest, ShortFileEndsItsBlockAndKeepsTheRest) {
  std::vector<uint8_t> full = FileOf(950, SampleBytes(950, 31, "name", 5));
  // Cut inside the double: life, speed and flag are read, the rest stays.
  full.resize(4 + 4 + 4 + 2 + 1 + 3);
  WriteBytes("short.dat", full);
  cSampleRecord record;
  record.m_dRate = 2.5;
  record.m_strName = "before";
  EXPECT_EQ(1, record.LoadFile("short.dat"));
  EXPECT_EQ(31, record.m_nLife);
  EXPECT_EQ(3, record.m_sSpeed);
  EXPECT_EQ(2.5, record.m_dRate);
  EXPECT_EQ(42, record.m_nAdded);
  EXPECT_EQ("before", record.m_strName);
}

TEST_F(SaveDataTest, RecordsAcrossTheStreamBufferKeepEveryFieldAndACutFileEndsCleanly) {
  // Enough records that blocks and strings straddle the stream's buffer.
  cSampleHolder holder;
  holder.m_vItem.resize(3000);
  for (size_t i = 0; i < holder.m_vItem.size(); ++i) {
    cSampleRecord& item = holder.m_vItem[i];
    item.m_nLife = static_cast<int32_t>(i);
    item.m_dRate = 0.25 * static_cast<double>(i);
    item.m_anParam[2] = -static_cast<int32_t>(i);
    item.m_strName = std::string(i % 37, 'n');
  }
  ASSERT_EQ(1, holder.SaveFile("many.dat"));
  std::vector<uint8_t> bytes = ReadBytes("many.dat");
  ASSERT_GT(bytes.size(), 3u * 65536u);

  cSampleHolder loaded;
  ASSERT_EQ(1, loaded.LoadFile("many.dat"));
  ASSERT_EQ(holder.m_vItem.size(), loaded.m_vItem.size());
  for (size_t i = 0; i < holder.m_vItem.size(); ++i) {
    EXPECT_TRUE(IsSame(holder.m_vItem[i], loaded.m_vItem[i])) << i;
    EXPECT_EQ(holder.m_vItem[i].m_anParam[2], loaded.m_vItem[i].m_anParam[2]) << i;
  }

  // Cut past the first buffer, inside a record: the records before it are
  // whole, the cut one has its leading fields, and nothing runs away.
  bytes.resize(70001);
  WriteBytes("cut.dat", bytes);
  cSampleHolder cut;
  ASSERT_EQ(1, cut.LoadFile("cut.dat"));
  size_t whole = 0;
  while (whole < cut.m_vItem.size() && IsSame(cut.m_vItem[whole], holder.m_vItem[whole])) ++whole;
  EXPECT_GT(whole, 800u);
  EXPECT_LT(whole, holder.m_vItem.size());
}

TEST_F(SaveDataTest, FewerEntriesThanTheClassKnowsLeaveTheRestAsTheyWere) {
  cBytes bytes;
  bytes.I32(1).I32(12).I32(1).Str("only");
  WriteBytes("few.dat", FileOf(950, bytes));
  cSampleRecord record;
  record.m_sSpeed = 4;
  EXPECT_EQ(1, record.LoadFile("few.dat"));
  EXPECT_EQ(12, record.m_nLife);
  EXPECT_EQ(4, record.m_sSpeed);
  EXPECT_EQ("only", record.m_strName);
  EXPECT_EQ("note", record.m_strNote);
}

TEST_F(SaveDataTest, HugeCountsAndLengthsAreDamageNotAllocations) {
  cBytes vectorCount;
  vectorCount.I32(1).I32(3).I32(0).I32(0x7fffffff);
  WriteBytes("huge.dat", FileOf(950, vectorCount));
  cSampleHolder holder;
  holder.m_vItem.resize(2);
  EXPECT_EQ(1, holder.LoadFile("huge.dat"));
  EXPECT_EQ(3, holder.m_nCount);
  EXPECT_TRUE(holder.m_vItem.empty());

  cBytes stringLength;
  stringLength.I32(0).I32(1).I32(0x7ffffff0);
  WriteBytes("long.dat", FileOf(950, stringLength));
  cSampleRecord record;
  record.m_strName = "safe";
  EXPECT_EQ(1, record.LoadFile("long.dat"));
  EXPECT_EQ("safe", record.m_strName);

  cBytes negative;
  negative.I32(0).I32(1).I32(-5);
  WriteBytes("neg.dat", FileOf(950, negative));
  EXPECT_EQ(1, record.LoadFile("neg.dat"));
  EXPECT_EQ("safe", record.m_strName);
  EXPECT_EQ(0, g_bNoSave);
}

TEST_F(SaveDataTest, ADamagedCountInALargeFileGrowsTheListOnlyByTheRecordsRead) {
  // The count passes its check against the bytes behind it, 8 a record,
  // but the records there end in damage after 3000.
  constexpr int32_t kPromised = 400000;
  constexpr int kWhole = 3000;
  cBytes body;
  body.I32(1).I32(3).I32(0).I32(kPromised);
  for (int i = 0; i < kWhole; ++i) {
    const cBytes element = SampleBytes(950, i, "e");
    body.Raw(element.Data().data(), element.Data().size());
  }
  body.I32(0).I32(1).I32(-5);
  body.Raw(std::vector<uint8_t>(static_cast<size_t>(kPromised) * 8).data(), static_cast<size_t>(kPromised) * 8);
  WriteBytes("damaged.dat", FileOf(950, body));

  cSampleHolder holder;
  EXPECT_EQ(0, holder.LoadWholeFile("damaged.dat"));
  ASSERT_GE(holder.m_vItem.size(), static_cast<size_t>(kWhole));
  EXPECT_LT(holder.m_vItem.capacity(), static_cast<size_t>(kPromised) / 10) << "memory follows the records read";
  EXPECT_EQ(kWhole - 1, holder.m_vItem[kWhole - 1].m_nLife) << "records past the first batch load whole";
}

TEST_F(SaveDataTest, MoreEntriesThanTheClassKnowsRunTheBadIndexStop) {
  cBytes bytes;
  bytes.I32(2).I32(5).I32(6).I32(0);
  WriteBytes("many.dat", FileOf(950, bytes));
  cSampleHolder holder;  // knows one scalar entry
  const int closesBefore = CloseRequestCount();
  EXPECT_EQ(1, holder.LoadFile("many.dat"));
  EXPECT_EQ(5, holder.m_nCount);
  EXPECT_EQ(1, g_bNoSave);
  EXPECT_EQ(closesBefore + 1, CloseRequestCount());
  EXPECT_EQ(0, holder.SaveFile("out.dat"));
}

TEST_F(SaveDataTest, AWholeScalarBlockWithAMissingOrExcessStringCount) {
  // The file ends inside the string count: the scalars are kept whole and
  // the strings stay as they were.
  std::vector<uint8_t> bytes = FileOf(950, SampleBytes(950, 31, "name", 5));
  const size_t scalarsEnd = 4 + 4 + 4 + 2 + 1 + 8 + 3 * 4 + 4;
  std::vector<uint8_t> cut(bytes.begin(), bytes.begin() + scalarsEnd + 2);
  WriteBytes("cut.dat", cut);
  cSampleRecord record;
  record.m_strName = "before";
  EXPECT_EQ(1, record.LoadFile("cut.dat"));
  EXPECT_EQ(31, record.m_nLife);
  EXPECT_EQ(5, record.m_nAdded);
  EXPECT_EQ("before", record.m_strName);

  // A string count beyond the class's strings: the known ones are read,
  // then the bad index stops saving.
  bytes[scalarsEnd] = 3;
  WriteBytes("excess.dat", bytes);
  const int closesBefore = CloseRequestCount();
  EXPECT_EQ(1, record.LoadFile("excess.dat"));
  EXPECT_EQ("name", record.m_strName);
  EXPECT_EQ(1, g_bNoSave);
  EXPECT_EQ(closesBefore + 1, CloseRequestCount());
}

TEST_F(SaveDataTest, NoSaveStopsEverySaveAndLeavesTheFile) {
  cSampleRecord record;
  ASSERT_EQ(1, record.SaveFile("keep.dat"));
  std::vector<uint8_t> before = ReadBytes("keep.dat");
  g_bNoSave = 1;
  record.m_nLife = 999;
  EXPECT_EQ(0, record.SaveFile("keep.dat"));
  EXPECT_EQ(nullptr, OpenWrite("keep.dat"));
  EXPECT_EQ(before, ReadBytes("keep.dat"));
}

TEST_F(SaveDataTest, VectorElementsStartFromClassDefaultsNotFromTheirNeighbour) {
  cSampleHolder holder;
  holder.m_vItem.resize(2);
  holder.m_vItem[0].m_nAdded = 1;
  holder.m_vItem[1].m_nAdded = 2;
  ASSERT_EQ(1, holder.SaveFile("h.dat"));

  cBytes old;
  old.I32(1).I32(0).I32(0).I32(2);
  for (int i = 0; i < 2; ++i) {
    cBytes element = SampleBytes(250, 100 + i, "e");
    old.Raw(element.Data().data(), element.Data().size());
  }
  WriteBytes("old.dat", FileOf(250, old));
  cSampleHolder loaded;
  ASSERT_EQ(1, loaded.LoadFile("old.dat"));
  ASSERT_EQ(2u, loaded.m_vItem.size());
  EXPECT_EQ(42, loaded.m_vItem[1].m_nAdded);
  EXPECT_EQ(101, loaded.m_vItem[1].m_nLife);

  cSampleHolder reread;
  ASSERT_EQ(1, reread.LoadFile("h.dat"));
  ASSERT_EQ(2u, reread.m_vItem.size());
  EXPECT_EQ(2, reread.m_vItem[1].m_nAdded);
}

TEST_F(SaveDataTest, ResetCopyAndSameReachTheNewestFieldsAfterAnOldLoad) {
  WriteBytes("old.dat", FileOf(150, SampleBytes(150, 8, "n")));
  cSampleRecord record;
  record.LoadFile("old.dat");
  cSampleRecord other;
  other.CopyFrom(record);
  EXPECT_TRUE(IsSame(record, other));
  EXPECT_EQ(42, other.m_nAdded);
  other.m_nAdded = 43;
  EXPECT_FALSE(IsSame(record, other));
  other.m_nAdded = 42;
  other.m_strNote = "Kept";
  EXPECT_FALSE(IsSame(record, other));
  record.Reset();
  EXPECT_EQ(0, record.m_nAdded);
  EXPECT_EQ("", record.m_strNote);
  EXPECT_EQ(0, record.m_anParam[2]);
}

TEST_F(SaveDataTest, IsOlderFileComparesTheVersionWord) {
  WriteBytes("v.dat", FileOf(500, SampleBytes(500, 1, "x")));
  WriteBytes("new.dat", FileOf(951, SampleBytes(950, 1, "x")));
  EXPECT_TRUE(IsOlderFile("v.dat", 501));
  EXPECT_FALSE(IsOlderFile("v.dat", 500));
  EXPECT_FALSE(IsOlderFile("missing.dat", 950));
  EXPECT_FALSE(IsOlderFile("new.dat", 999));
}

TEST_F(SaveDataTest, RecordsHoldNoFieldListOfTheirOwn) {
  // Beyond the members only the virtual table pointer: the lists are shared.
  struct cBare : cSaveData {
    int32_t m_n = 0;
  };
  EXPECT_EQ(sizeof(void*) + sizeof(int32_t) + 4, sizeof(cBare));
}

}  // namespace
}  // namespace velmora
