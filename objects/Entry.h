#pragma once
#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "core/SaveData.h"
#include "objects/Cond.h"
#include "objects/InheritFlags.h"
#include "objects/PaletteTables.h"

namespace velmora {

inline constexpr int kMaxEntryConds = 99;
inline constexpr int kMaxEntryNameChars = 20;

// What blocks, characters and items share: the inheritance pair and the
// appearance conditions at the head of the scalar block, the name, and the
// cell position, inherit flags and conditions behind the blocks.
class cEdEntry : public cSaveData {
 public:
  uint8_t m_nInheritSrc = 0;
  int16_t m_nInheritNo = 0;
  uint8_t m_nCondJudge = 0;
  uint8_t m_bCondLatch = 0;
  std::string m_strName;
  int16_t m_nPosX = 0;
  int16_t m_nPosY = 0;
  cInheritFlags m_bbInherit;
  std::vector<cEdCond> m_vCond;

  // Inheritance turned off when the source entry is gone (number beyond
  // its list).
  void CheckInheritRef(int listSize);

 protected:
  void RegisterHead();
  void LoadPosition(cDataFile& file);
  void SavePosition(cDataFile& file) const;
  void LoadInheritAndConds(cDataFile& file);
  void SaveInheritAndConds(cDataFile& file);
  void VisitInheritAndConds(cNestedVisitor& visitor) const;
  bool SameEntry(const cEdEntry& other) const;
  // Sets the flags to `groups` zero bytes, as in a new record.
  void ResetInheritFlags(size_t groups) { m_bbInherit.assign(groups, 0); }
};

// Shot pictures were renumbered from 1 at version 219: an old entry that
// shows one moves up by one, at most to the last picture.
template <class T>
void RenumberShotGraphic(T& entry) {
  if (entry.m_nGraphicKind == kGraphicKindShot) entry.m_nGraphicNo = static_cast<int16_t>(std::min(entry.m_nGraphicNo + 1, 119));
}

// Resizes a flag vector to `size` and inserts `value` at `index`, moving
// the later bytes up and dropping the last: what an old file needs when a
// group was added in the middle.
template <class Flags>
void InsertFlag(Flags& flags, size_t size, size_t index, uint8_t value) {
  flags.resize(size, 0);
  if (index >= size) return;
  std::copy_backward(flags.begin() + index, flags.end() - 1, flags.end());
  flags[index] = value;
}

}  // namespace velmora
