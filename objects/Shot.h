#pragma once
#include <algorithm>
#include <cstdint>

#include "core/SaveData.h"

namespace velmora {

// The parameters of ショット, ソード and the three summon commands. One
// record serves them all; each command's dialog shows the fields it uses.
class cEdShot final : public cSaveData {
 public:
  uint8_t m_nCount = 0;
  uint8_t m_nFormation = 0;
  int16_t m_anFormParam[3] = {0, 0, 0};
  uint8_t m_nAimTarget = 0;
  uint8_t m_nDir = 0;
  uint8_t m_bAimAtTarget = 0;
  uint8_t m_nTargetNo = 0;
  int16_t m_nAngleShift = 0;
  int16_t m_nAngleShiftClone = 0;
  uint8_t m_bAngleMirror = 1;
  int16_t m_nSpread = 0;
  uint8_t m_bPosByAngle = 0;
  uint8_t m_nCloneCount = 0;
  int16_t m_nShiftX = 0;
  int16_t m_nShiftXClone = 0;
  int16_t m_nShiftY = 0;
  int16_t m_nShiftYClone = 0;
  uint8_t m_bFlipX = 1;
  uint8_t m_bFlipY = 0;
  int16_t m_nGraphic = 0;
  uint8_t m_nZ = 0;
  uint8_t m_bTransparent = 0;
  uint8_t m_bSameForce = 1;
  uint8_t m_nForce = 0;
  uint8_t m_nReserved1 = 0;
  uint8_t m_nGiant = 1;
  uint8_t m_nReserved2 = 0;
  uint8_t m_nMoveType = 0;
  int16_t m_anMoveParam[3] = {0, 0, 0};
  uint8_t m_nMoveTarget = 0;
  uint8_t m_bAutoScrollSync = 0;
  int16_t m_nSpeed = 0;
  int16_t m_nSpeedClone = 0;
  uint8_t m_bAccel = 0;
  int16_t m_nAccel = 0;
  int16_t m_nAccelClone = 0;
  int16_t m_nRange = 0;
  uint8_t m_bRange = 0;
  int16_t m_nRangeClone = 0;
  uint8_t m_bNoVanishAtEnd = 0;
  uint8_t m_bLife = 0;
  int16_t m_nLife = 0;
  int16_t m_nLifeClone = 0;
  uint8_t m_bPierceBlock = 0;
  uint8_t m_bPierceChara = 0;
  uint8_t m_bPierceBlockChara = 0;
  uint8_t m_bShotVanish = 0;
  uint8_t m_nVanishValue = 0;
  int32_t m_nPower = 0;
  int16_t m_nReserved3 = 0;
  int8_t m_nImpact = 0;
  int16_t m_nEffect = 0;
  uint8_t m_nGetItemSrc = 0;
  int16_t m_nGetItemNo = 0;
  uint8_t m_nSummonType = 0;
  uint8_t m_bFailOnHero = 0;
  uint8_t m_bFailOnEnemy = 0;
  uint8_t m_nSummonSrc = 0;
  int16_t m_nSummonNo = 0;
  uint8_t m_nForceMode = 0;
  uint8_t m_bZeroScore = 0;
  uint8_t m_bFlipDir = 0;
  uint8_t m_bAttack = 0;
  uint8_t m_nAttackFlow = 0;

  void Load(cDataFile& file) override;
  // Every element of the two parameter triples counts, not only the first.
  bool operator==(const cEdShot& other) const {
    return IsSame(*this, other) && std::equal(m_anFormParam, m_anFormParam + 3, other.m_anFormParam) &&
           std::equal(m_anMoveParam, m_anMoveParam + 3, other.m_anMoveParam);
  }

 protected:
  void Register(uint32_t version) override;
};

}  // namespace velmora
