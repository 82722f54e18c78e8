#include "objects/Move.h"

#include "objects/Upgrade.h"

namespace velmora {

void cEdMove::Register(uint32_t version) {
  ClearLists();
  Add1(VFIELD(m_nAimType));
  Add1(VFIELD(m_nDir));
  Add2(VFIELD(m_nAngle));
  Add2(VFIELD(m_nAngleClone));
  if (version >= 158) Add1(VFIELD(m_bAngleMirror));
  Add1(VFIELD(m_bTargetX));
  Add1(VFIELD(m_bTargetY));
  Add2(VFIELD(m_nTargetX));
  Add2(VFIELD(m_nTargetY));
  Add2(VFIELD(m_nTargetXDot));
  Add2(VFIELD(m_nTargetYDot));
  Add1(VFIELD(m_nTargetType));
  if (version >= 891) Add1(VFIELD(m_nTargetUnit));
  if (version >= 892) Add1(VFIELD(m_nWarpOrigin));
  Add1(VFIELD(m_bUntilTarget));
  Add1(VFIELD(m_bNoMoveX));
  Add1(VFIELD(m_bNoMoveY));
  Add1(VFIELD(m_bFlipX));
  Add1(VFIELD(m_bFlipY));
  Add1(VFIELD(m_bFlipOnTurn));
  Add1(VFIELD(m_bNoShake));
  if (version >= 162) Add1(VFIELD(m_bKeepDir));
  Add1(VFIELD(m_nSetType));
  Add2(VFIELD(m_nSpeed));
  Add2(VFIELD(m_nSpeedClone));
  Add2(VFIELD(m_nDist));
  Add2(VFIELD(m_nDistClone));
  if (version >= 159) Add1(VFIELD(m_nDistUnit));
  Add2(VFIELD(m_nParam1));
  Add2(VFIELD(m_nParam2));
  Add1(VFIELD(m_bInertia));
  Add2(VFIELD(m_nMaxSpeed));
  Add8(VFIELD(m_dTurnRate));
  if (version >= 162) Add1(VFIELD(m_nAnimeKind));
  if (version >= 767) Add1(VFIELD(m_nTargetNo));
}

namespace {

constexpr int kAnimeStill = 1;
constexpr int kAnimeOther = 2;

const cUpgradeStep<cEdMove> kMoveUpgrades[] = {
    {158, [](cEdMove& m) { m.m_bAngleMirror = 0; }},
    {159, [](cEdMove& m) { m.m_nDistUnit = 0; }},
    {162, [](cEdMove& m) { m.m_bKeepDir = m.m_nAnimeKind = 0; }},
    // The still animation of old files played what is now その他.
    {830, [](cEdMove& m) { if (m.m_nAnimeKind == kAnimeStill) m.m_nAnimeKind = kAnimeOther; }},
};

double DotsPer(int16_t distance, int16_t divisor, int16_t unit) {
  if (divisor == 0) return 0.0;
  const double dots = unit == 1 ? distance : distance * 16.0;
  return dots / divisor;
}

}  // namespace

void cEdMove::Load(cDataFile& file) {
  cSaveData::Load(file);
  ApplyUpgrades<cEdMove>(*this, kMoveUpgrades);
}

double DistPerSpeed(int16_t distance, int16_t speed, int16_t unit) { return DotsPer(distance, speed, unit); }
double DistPerTime(int16_t distance, int16_t time, int16_t unit) { return DotsPer(distance, time, unit); }

bool IsDistSpeedValid(int16_t distance, int16_t speed, int16_t unit) {
  const double ratio = DistPerSpeed(distance, speed, unit);
  return ratio <= -0.1 || ratio >= 0.1;
}

bool IsDistTimeValid(int16_t distance, int16_t time, int16_t unit) {
  const double ratio = DistPerTime(distance, time, unit);
  return ratio >= -600.0 && ratio <= 600.0;
}

}  // namespace velmora
