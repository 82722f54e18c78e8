#pragma once
#include "objects/Entry.h"
#include "objects/Flow.h"

namespace velmora {

inline constexpr int kCharaInheritGroups = 37;

class cEdChara final : public cEdEntry {
 public:
  uint8_t m_bFaceRight = 0;
  uint8_t m_nCloneCount = 0;
  int16_t m_nOffsetX = 0;
  int16_t m_nOffsetXClone = 0;
  int16_t m_nOffsetY = 0;
  int16_t m_nOffsetYClone = 0;
  uint8_t m_bOffsetXFlip = 0;
  uint8_t m_bOffsetYFlip = 0;
  int16_t m_nGraphicNo = 0;  // 0 marks an empty cell
  uint8_t m_nGraphicKind = 1;
  int16_t m_nGraphicShift = 0;
  int16_t m_nAnimeSet = 0;
  uint8_t m_nZ = 3;
  uint8_t m_nTransparent = 0;
  int16_t m_nStartEffect = 0;
  uint8_t m_nStartEffectMode = 0;
  uint8_t m_bStartEffectLoop = 1;
  int16_t m_nDeathEffect = 0;
  uint8_t m_nDeathEffectMode = 0;
  uint8_t m_nMarkShow = 0;
  int16_t m_nMarkNo = 0;
  uint8_t m_nControl = 1;
  uint8_t m_nPlayerNo = 0;
  uint8_t m_nForce = 1;
  uint8_t m_nCharaId = 0;
  uint8_t m_nFly = 0;
  uint8_t m_bFixDir = 1;
  uint8_t m_nInvincible = 0;
  uint8_t m_nInvincibleFx = 0;
  uint8_t m_nBlock = 0;
  uint8_t m_nGiant = 1;
  uint8_t m_bAutoScrollSync = 0;
  uint8_t m_nSightType = 0;
  uint8_t m_nSightRange = 0;
  int32_t m_nHp = 10;
  int32_t m_nSp = 0;
  int16_t m_nStopEase = 10;
  uint8_t m_nBodyHitRange = 0;
  int32_t m_nBodyPower = 0;
  int8_t m_nBodyImpact = 0;
  int16_t m_nBodyEffect = 0;
  int32_t m_nDefense = 0;
  uint8_t m_nImpactResist = 0;
  int32_t m_nScore = 0;
  uint8_t m_bHoldItem = 1;
  uint8_t m_bGroup = 0;
  int16_t m_nGroupNo = 0;
  uint8_t m_nActRange = 0;
  uint8_t m_nActJudge = 0;
  int32_t m_nHeldItem = 0;  // a cell's held item: count of item cells before it, -1 for none
  std::vector<cEdFlow> m_vFlow;

  cEdChara() { ResetEntry(); }
  void ResetEntry();

  void Load(cDataFile& file) override;
  void Save(cDataFile& file) override;
  void VisitNested(cNestedVisitor& visitor) const override;
  bool operator==(const cEdChara& other) const {
    return SameEntry(other) && m_nHeldItem == other.m_nHeldItem && m_vFlow == other.m_vFlow;
  }

  void ApplyInherit();
  void CheckRefs();
  // The second check: the palette references of every command of every flow.
  void CheckCmdRefs();

 protected:
  void Register(uint32_t version) override;
};

}  // namespace velmora
