#pragma once
#include <cstdint>

#include "core/SaveData.h"

namespace velmora {

// The parameters of the movement commands and of ワープ. One record serves
// them all; each command's dialog shows the fields it uses.
class cEdMove final : public cSaveData {
 public:
  uint8_t m_nAimType = 0;
  uint8_t m_nDir = 0;
  int16_t m_nAngle = 0;
  int16_t m_nAngleClone = 0;
  uint8_t m_bAngleMirror = 1;
  uint8_t m_bTargetX = 1;
  uint8_t m_bTargetY = 1;
  int16_t m_nTargetX = 0;
  int16_t m_nTargetY = 0;
  int16_t m_nTargetXDot = 0;
  int16_t m_nTargetYDot = 0;
  uint8_t m_nTargetType = 0;
  uint8_t m_nTargetUnit = 0;
  uint8_t m_nWarpOrigin = 0;
  uint8_t m_bUntilTarget = 1;
  uint8_t m_bNoMoveX = 0;
  uint8_t m_bNoMoveY = 0;
  uint8_t m_bFlipX = 1;
  uint8_t m_bFlipY = 0;
  uint8_t m_bFlipOnTurn = 1;
  uint8_t m_bNoShake = 0;
  uint8_t m_bKeepDir = 0;
  uint8_t m_nSetType = 0;
  int16_t m_nSpeed = 10;
  int16_t m_nSpeedClone = 0;
  int16_t m_nDist = 0;
  int16_t m_nDistClone = 0;
  uint8_t m_nDistUnit = 0;
  int16_t m_nParam1 = 0;
  int16_t m_nParam2 = 0;
  uint8_t m_bInertia = 0;
  int16_t m_nMaxSpeed = 0;
  double m_dTurnRate = 1.0;
  uint8_t m_nAnimeKind = 0;
  uint8_t m_nTargetNo = 0;

  void Load(cDataFile& file) override;
  bool operator==(const cEdMove& other) const { return IsSame(*this, other); }

 protected:
  void Register(uint32_t version) override;
};

// The running ratios of a move: distance in dots per speed or per time.
// A divisor of 0 gives 0.0. `unit` 1 means the distance is in dots, any
// other value half blocks.
double DistPerSpeed(int16_t distance, int16_t speed, int16_t unit);
double DistPerTime(int16_t distance, int16_t time, int16_t unit);
bool IsDistSpeedValid(int16_t distance, int16_t speed, int16_t unit);
bool IsDistTimeValid(int16_t distance, int16_t time, int16_t unit);

}  // namespace velmora
