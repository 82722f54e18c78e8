#include <gtest/gtest.h>

#include "objects/CondList.h"
#include "objects/CondTables.h"
#include "objects/KeyCond.h"
#include "objects/ObjectList.h"
#include "OldFile.h"

namespace velmora::testing {
namespace {

cEdCond StatusCond() {
  cEdCond c;
  c.m_nKind = kCondStatus;
  return c;
}

TEST(CondRecord, NewestLayoutReadsFieldsInFileOrderWithTheirWidths) {
  cTempProject project;
  cBytes bytes;
  bytes.U32(950).I32(21).U8(4).I32(-70000).I32(-5).I32(9);
  bytes.U8(1).U8(6).U8(0).U8(1).I16(-300);
  bytes.U8(2).U8(5).U8(3).U8(1).I16(512);
  bytes.U8(3).U8(1).U8(2).U8(1).U8(2).U8(1).U8(6).I32(0);
  WriteBytes("c.dat", bytes.Data());
  cEdCond c;
  ASSERT_EQ(c.LoadFile("c.dat"), 1);
  EXPECT_EQ(c.m_nKind, 4);
  EXPECT_EQ(c.m_nValue, -70000);
  EXPECT_EQ(c.m_nRandMin, -5);
  EXPECT_EQ(c.m_nRandMax, 9);
  EXPECT_EQ(c.m_nLeftStatus, 6);
  EXPECT_EQ(c.m_nLeftVar, -300);
  EXPECT_EQ(c.m_nRightStatus, 3);
  EXPECT_EQ(c.m_nRightVar, 512);
  EXPECT_EQ(c.m_nRelation, 3);
  EXPECT_EQ(c.m_bPercent, 1);
  EXPECT_EQ(c.m_nLeftCoord, 2);
  EXPECT_EQ(c.m_nRightGiantPos, 1);
  EXPECT_EQ(c.m_nDistAxis, 6);

  // Written back unchanged, byte for byte.
  ASSERT_EQ(c.SaveFile("d.dat"), 1);
  EXPECT_EQ(ReadBytes("d.dat"), bytes.Data());
}

TEST(CondRecord, FilesBefore110HoldTwoRetiredWordsInsteadOfTheSides) {
  cEdCond c;
  c.m_nKind = kCondCommonVar;
  c.m_nValue = 77;
  c.m_nLeftVar = 12;
  c.m_nRandMax = 40;
  c.m_nRelation = 2;
  c.m_bPercent = 1;
  c.m_nDistAxis = 3;
  cEdCond loaded = ReadAsVersion(100, c);
  EXPECT_EQ(loaded.m_nValue, 77);
  EXPECT_EQ(loaded.m_nRelation, 2);
  EXPECT_EQ(loaded.m_bPercent, 1);
  EXPECT_EQ(loaded.m_nDistAxis, 3);
  EXPECT_EQ(loaded.m_nLeftVar, 0);
  EXPECT_EQ(loaded.m_nRandMax, 0);
  EXPECT_EQ(ReadAsVersion(42, c).m_bPercent, 0);
}

TEST(CondUpgrade, OldKindNumbersAndDistanceFields) {
  cEdCond c;
  c.m_nKind = 5;  // 距離条件 before two status kinds were added
  c.m_nLeftObject = 3;
  c.m_nLeftType = 2;
  c.m_nRightType = 0;
  c.m_nRightObject = 0;
  cEdCond loaded = ReadAsVersion(159, c);
  EXPECT_EQ(loaded.m_nKind, kCondDistance);
  EXPECT_EQ(loaded.m_nLeftObject, 0);
  EXPECT_EQ(loaded.m_nLeftType, 0);
  EXPECT_EQ(loaded.m_nRightType, 1);
  EXPECT_EQ(loaded.m_nRightObject, 1);

  c.m_nKind = 4;  // below 5: stays
  EXPECT_EQ(ReadAsVersion(159, c).m_nKind, 4);
}

TEST(CondUpgrade, OnBlockTestOfStatus3IsInverted) {
  cEdCond c;
  c.m_nKind = kCondStatus3;
  c.m_nLeftStatus = 2;
  c.m_nRelation = 0;
  EXPECT_EQ(ReadAsVersion(160, c).m_nRelation, 1);
  c.m_nLeftStatus = 1;
  EXPECT_EQ(ReadAsVersion(160, c).m_nRelation, 0);
  c.m_nLeftStatus = 2;
  EXPECT_EQ(ReadAsVersion(161, c).m_nRelation, 0);
}

TEST(CondUpgrade, StatusRowsFollowEveryInsertionOfTheTable) {
  cEdCond c = StatusCond();
  c.m_nLeftType = 0;
  c.m_nLeftObject = 0;
  c.m_nLeftStatus = 10;
  c.m_nRightType = 2;
  c.m_nRightObject = 2;
  c.m_nRightStatus = 10;
  c.m_nLeftCoord = c.m_nRightCoord = 2;
  c.m_nLeftGiantPos = c.m_nRightGiantPos = 1;
  cEdCond loaded = ReadAsVersion(167, c);
  // 10 -> 11 (168) -> 12 (203) -> 14 (883).
  EXPECT_EQ(loaded.m_nLeftStatus, 14);
  // Object 2 was the system before 767: skipped until it becomes 5.
  EXPECT_EQ(loaded.m_nRightObject, kObjectSystem);
  EXPECT_EQ(loaded.m_nRightStatus, 10);
  // The coordinate fields are absent before 883 and 893.
  EXPECT_EQ(loaded.m_nLeftCoord, 0);
  EXPECT_EQ(loaded.m_nLeftGiantPos, 0);

  c.m_nLeftStatus = 5;
  c.m_nRightType = 0;
  c.m_nRightObject = 1;
  c.m_nRightStatus = 12;
  loaded = ReadAsVersion(202, c);
  EXPECT_EQ(loaded.m_nLeftStatus, 8);   // 203 then 883
  EXPECT_EQ(loaded.m_nRightStatus, 12);  // a constant on the right: untouched
  EXPECT_EQ(loaded.m_nRightObject, 1);
}

TEST(CondUpgrade, CoordinatesAndGiantPositionsOfLateFiles) {
  cEdCond c = StatusCond();
  c.m_nLeftObject = kObjectSystem;
  c.m_nLeftStatus = 7;
  c.m_nRightType = 2;
  c.m_nRightObject = 1;
  c.m_nRightStatus = 6;
  c.m_nLeftCoord = 1;
  c.m_nLeftGiantPos = c.m_nRightGiantPos = 2;
  cEdCond loaded = ReadAsVersion(882, c);
  EXPECT_EQ(loaded.m_nLeftStatus, 7);  // system statuses never moved
  EXPECT_EQ(loaded.m_nRightStatus, 8);
  EXPECT_EQ(loaded.m_nLeftCoord, 0);
  loaded = ReadAsVersion(891, c);
  EXPECT_EQ(loaded.m_nLeftCoord, 1);
  EXPECT_EQ(loaded.m_nLeftGiantPos, 0);
  EXPECT_EQ(ReadAsVersion(892, c).m_nLeftGiantPos, 0);  // field absent before 893
  EXPECT_EQ(ReadAsVersion(893, c).m_nLeftGiantPos, 2);
}

TEST(CondUpgrade, FlagRowsAndObjectsOfStatus2) {
  cEdCond c;
  c.m_nKind = kCondStatus2;
  c.m_nLeftObject = 1;
  c.m_nLeftStatus = 6;
  EXPECT_EQ(ReadAsVersion(209, c).m_nLeftStatus, 7);
  c.m_nLeftObject = 2;  // the system, before 767
  cEdCond loaded = ReadAsVersion(209, c);
  EXPECT_EQ(loaded.m_nLeftStatus, 6);
  EXPECT_EQ(loaded.m_nLeftObject, kObjectSystem);
  c.m_nLeftObject = 1;
  EXPECT_EQ(ReadAsVersion(766, c).m_nLeftObject, 1);
}

TEST(CondList, ConditionsAreStoredFrom766On) {
  cCondList list;
  list.m_bEnabled = 1;
  list.m_nJudge = 1;
  list.m_vCond.resize(2);
  list.m_vCond[1].m_nKind = kCondCharaVar;
  cCondList old = ReadAsVersion(765, list);
  EXPECT_EQ(old.m_bEnabled, 1);
  EXPECT_TRUE(old.m_vCond.empty());
  EXPECT_EQ(ReadAsVersion(766, list), list);

  cCondList other = list;
  other.m_vCond[1].m_nValue = 1;
  EXPECT_FALSE(other == list);
  other.m_vCond.pop_back();
  EXPECT_FALSE(other == list);
}

TEST(KeyCond, KeyStatesAreANestedListAndACountBelowOneKeepsThem) {
  cTempProject project;
  cEdKeyCond key;
  key.m_nPressMin = 3;
  key.m_nPressMax = 30;
  key.m_vKeyState[11] = 1;
  key.m_vKeyState[18] = 2;
  ASSERT_EQ(key.SaveFile("k.dat"), 1);
  // 4 version + 4 count + 7 bytes + 4 strings + 4 count + 19 states.
  EXPECT_EQ(ReadBytes("k.dat").size(), 42u);
  cEdKeyCond loaded;
  ASSERT_EQ(loaded.LoadFile("k.dat"), 1);
  EXPECT_EQ(loaded, key);

  cBytes bytes;
  bytes.U32(950).I32(5).U8(1).I16(2).I16(4).U8(0).U8(2).I32(0).I32(0);
  WriteBytes("z.dat", bytes.Data());
  cEdKeyCond kept = key;
  ASSERT_EQ(kept.LoadFile("z.dat"), 1);
  EXPECT_EQ(kept.m_vKeyState, key.m_vKeyState);
  EXPECT_EQ(kept.m_nJudge, 2);
}

TEST(KeyCond, ACountBeyondTheFileLeavesTheStatesAndEndsTheStream) {
  cTempProject project;
  cBytes bytes;
  bytes.U32(950).I32(5).U8(0).I16(1).I16(1).U8(0).U8(0).I32(0).I32(1000000).U8(1);
  WriteBytes("bad.dat", bytes.Data());
  cEdKeyCond key;
  ASSERT_EQ(key.LoadFile("bad.dat"), 1);
  EXPECT_EQ(key.m_vKeyState, std::vector<uint8_t>(kKeyCount, 0));
}

}  // namespace
}  // namespace velmora::testing
