#include <gtest/gtest.h>

#include <cstring>
#include <utility>
#include <vector>

#include "core/DataFile.h"
#include "objects/Entry.h"
#include "objects/InheritFlags.h"
#include "objects/PlainVector.h"

namespace velmora {
namespace {

std::vector<uint8_t> Numbered(size_t count) {
  std::vector<uint8_t> flags(count);
  for (size_t i = 0; i < count; ++i) flags[i] = static_cast<uint8_t>(i + 1);
  return flags;
}

// Sizes on both sides of the inline room, and the crossings between them,
// keep every flag that stays.
TEST(InheritFlagsTest, ResizingAcrossTheInlineRoomKeepsTheFlags) {
  cInheritFlags flags = Numbered(11);
  flags.resize(37, 9);
  std::vector<uint8_t> expected(37, 9);
  for (size_t i = 0; i < 11; ++i) expected[i] = static_cast<uint8_t>(i + 1);
  EXPECT_EQ(flags, expected);
  flags.resize(13);
  expected.resize(13);
  EXPECT_EQ(flags, expected);
  flags.assign(40, 2);
  EXPECT_EQ(flags, std::vector<uint8_t>(40, 2));
  flags.clear();
  EXPECT_TRUE(flags.empty());
}

TEST(InheritFlagsTest, CopiesAndMovesOwnTheirFlags) {
  for (size_t count : {size_t{11}, size_t{37}}) {
    cInheritFlags original = Numbered(count);
    cInheritFlags copy = original;
    copy[0] = 99;
    EXPECT_EQ(original, Numbered(count));
    cInheritFlags moved = std::move(copy);
    EXPECT_EQ(99, moved[0]);
    EXPECT_EQ(count, moved.size());
    moved = original;
    EXPECT_EQ(moved, original);
  }
}

TEST(InheritFlagsTest, InsertingAGroupMovesTheLaterFlagsUpAndDropsTheLast) {
  cInheritFlags flags = Numbered(36);
  std::vector<uint8_t> plain = Numbered(36);
  InsertFlag(flags, 37, 21, 0);
  InsertFlag(plain, 37, 21, 0);
  EXPECT_EQ(flags, plain);
  EXPECT_EQ(0, flags[21]);
  EXPECT_EQ(22, flags[22]);
}

cInheritFlags LoadFrom(const std::vector<uint8_t>& bytes, cInheritFlags flags, bool* damaged) {
  auto file = cDataFile::FromMemory(bytes.data(), bytes.size());
  LoadPlainVector(flags, *file);
  *damaged = file->Damaged();
  return flags;
}

std::vector<uint8_t> Stored(int32_t count, const std::vector<uint8_t>& flags) {
  std::vector<uint8_t> bytes(4 + flags.size());
  std::memcpy(bytes.data(), &count, 4);
  for (size_t i = 0; i < flags.size(); ++i) bytes[4 + i] = flags[i];
  return bytes;
}

TEST(InheritFlagsTest, LoadTakesTheStoredCountOrLeavesTheFlagsAsTheyWere) {
  bool damaged = false;
  EXPECT_EQ(LoadFrom(Stored(37, Numbered(37)), cInheritFlags(Numbered(11)), &damaged), Numbered(37));
  EXPECT_EQ(LoadFrom(Stored(11, Numbered(11)), cInheritFlags(Numbered(37)), &damaged), Numbered(11));
  EXPECT_EQ(LoadFrom(Stored(0, {}), cInheritFlags(Numbered(11)), &damaged), Numbered(11));
  EXPECT_FALSE(damaged);
  EXPECT_EQ(LoadFrom(Stored(1000, Numbered(5)), cInheritFlags(Numbered(11)), &damaged), Numbered(11));
  EXPECT_TRUE(damaged);
}

}  // namespace
}  // namespace velmora
