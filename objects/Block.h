#pragma once
#include "objects/Entry.h"

namespace velmora {

inline constexpr int kBlockInheritGroups = 11;

class cEdBlock final : public cEdEntry {
 public:
  int16_t m_nGraphicNo = 0;  // 0 marks an empty cell
  uint8_t m_nGraphicKind = 0;
  int16_t m_nGraphicFrame = 0;
  uint8_t m_bFront = 0;
  uint8_t m_nTransparent = 0;
  uint8_t m_nMarkShow = 0;
  int16_t m_nMarkNo = 0;
  uint8_t m_nBlockType = 1;
  int8_t m_nNoHitForce = -1;  // list row minus 1: -1 is なし
  uint8_t m_nAction = 0;
  int32_t m_nActionX = 0;
  uint8_t m_nGetItemSrc = 0;
  int16_t m_nGetItemNo = 0;
  uint8_t m_bNoSummon = 0;

  cEdBlock() { ResetEntry(); }
  // The blank state: what an erased cell and element 0 of a palette are.
  void ResetEntry();

  void Load(cDataFile& file) override;
  void Save(cDataFile& file) override;
  void VisitNested(cNestedVisitor& visitor) const override { VisitInheritAndConds(visitor); }
  bool operator==(const cEdBlock& other) const { return SameEntry(other); }

  void ApplyInherit();
  void CheckRefs();
  // The second check: the item it gives, once all palettes are in place.
  void CheckItemRef();

 protected:
  void Register(uint32_t version) override;
};

}  // namespace velmora
