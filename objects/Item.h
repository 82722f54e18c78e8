#pragma once
#include "objects/Cmd.h"
#include "objects/Entry.h"

namespace velmora {

inline constexpr int kItemInheritGroups = 13;
inline constexpr int kMaxItemCmds = 999;

class cEdItem final : public cEdEntry {
 public:
  int16_t m_nOffsetX = 0;
  int16_t m_nOffsetY = 0;
  int16_t m_nGraphicNo = 0;  // 0 marks an empty cell
  uint8_t m_nGraphicKind = 2;
  int16_t m_nGraphicFrame = 0;
  uint8_t m_nZ = 6;
  uint8_t m_nTransparent = 0;
  uint8_t m_nMarkShow = 0;
  int16_t m_nMarkNo = 0;
  uint8_t m_bGetShow = 1;
  uint8_t m_nGetType = 0;
  uint8_t m_nGiant = 1;
  int16_t m_nGetSound = 0;
  std::vector<cEdCmd> m_vCmd;  // 効果, numbered by ItemCmdTable

  cEdItem() { ResetEntry(); }
  void ResetEntry();

  void Load(cDataFile& file) override;
  void Save(cDataFile& file) override;
  void VisitNested(cNestedVisitor& visitor) const override;
  bool operator==(const cEdItem& other) const { return SameEntry(other) && m_vCmd == other.m_vCmd; }

  void ApplyInherit();
  void CheckRefs();
  // The second check: the commands' palette references.
  void CheckCmdRefs();

 protected:
  void Register(uint32_t version) override;
};

}  // namespace velmora
