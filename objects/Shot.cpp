#include "objects/Shot.h"

#include "objects/Upgrade.h"

namespace velmora {

void cEdShot::Register(uint32_t version) {
  ClearLists();
  Add1(VFIELD(m_nCount));
  Add1(VFIELD(m_nFormation));
  Add2(VFIELDS(m_anFormParam, 3));
  if (version >= 671) Add1(VFIELD(m_nAimTarget));
  Add1(VFIELD(m_nDir));
  Add1(VFIELD(m_bAimAtTarget));
  if (version >= 767) Add1(VFIELD(m_nTargetNo));
  Add2(VFIELD(m_nAngleShift));
  Add2(VFIELD(m_nAngleShiftClone));
  if (version >= 158) Add1(VFIELD(m_bAngleMirror));
  Add2(VFIELD(m_nSpread));
  Add1(VFIELD(m_bPosByAngle));
  Add1(VFIELD(m_nCloneCount));
  Add2(VFIELD(m_nShiftX));
  Add2(VFIELD(m_nShiftXClone));
  Add2(VFIELD(m_nShiftY));
  Add2(VFIELD(m_nShiftYClone));
  Add1(VFIELD(m_bFlipX));
  Add1(VFIELD(m_bFlipY));
  Add2(VFIELD(m_nGraphic));
  Add1(VFIELD(m_nZ));
  Add1(VFIELD(m_bTransparent));
  Add1(VFIELD(m_bSameForce));
  Add1(VFIELD(m_nForce));
  Add1(VFIELD(m_nReserved1));
  Add1(VFIELD(m_nGiant));
  Add1(VFIELD(m_nReserved2));
  Add1(VFIELD(m_nMoveType));
  Add2(VFIELDS(m_anMoveParam, 3));
  if (version >= 767) Add1(VFIELD(m_nMoveTarget));
  if (version >= 211) Add1(VFIELD(m_bAutoScrollSync));
  Add2(VFIELD(m_nSpeed));
  Add2(VFIELD(m_nSpeedClone));
  if (version >= 213) {
    Add1(VFIELD(m_bAccel));
    Add2(VFIELD(m_nAccel));
    Add2(VFIELD(m_nAccelClone));
  }
  Add2(VFIELD(m_nRange));
  Add1(VFIELD(m_bRange));
  Add2(VFIELD(m_nRangeClone));
  Add1(VFIELD(m_bNoVanishAtEnd));
  Add1(VFIELD(m_bLife));
  Add2(VFIELD(m_nLife));
  Add2(VFIELD(m_nLifeClone));
  Add1(VFIELD(m_bPierceBlock));
  Add1(VFIELD(m_bPierceChara));
  if (version >= 636) Add1(VFIELD(m_bPierceBlockChara));
  Add1(VFIELD(m_bShotVanish));
  Add1(VFIELD(m_nVanishValue));
  Add4(VFIELD(m_nPower));
  Add2(VFIELD(m_nReserved3));
  Add1(VFIELD(m_nImpact));
  Add2(VFIELD(m_nEffect));
  Add1(VFIELD(m_nGetItemSrc));
  Add2(VFIELD(m_nGetItemNo));
  Add1(VFIELD(m_nSummonType));
  Add1(VFIELD(m_bFailOnHero));
  if (version >= 197) Add1(VFIELD(m_bFailOnEnemy));
  Add1(VFIELD(m_nSummonSrc));
  Add2(VFIELD(m_nSummonNo));
  Add1(VFIELD(m_nForceMode));
  Add1(VFIELD(m_bZeroScore));
  Add1(VFIELD(m_bFlipDir));
  if (version >= 762) {
    Add1(VFIELD(m_bAttack));
    Add1(VFIELD(m_nAttackFlow));
  }
}

namespace {

// The homing move types synchronised with the auto scroll before the
// choice existed.
bool IsHoming(int moveType) { return moveType >= 4 && moveType <= 7; }

const cUpgradeStep<cEdShot> kShotUpgrades[] = {
    {158, [](cEdShot& s) { s.m_bAngleMirror = 0; }},
    {197, [](cEdShot& s) { s.m_bFailOnEnemy = s.m_bFailOnHero; }},
    {212, [](cEdShot& s) { s.m_bAutoScrollSync = IsHoming(s.m_nMoveType) ? 1 : 0; }},
    {213, [](cEdShot& s) {
       s.m_bAccel = 0;
       s.m_nAccel = s.m_nAccelClone = 0;
     }},
    {636, [](cEdShot& s) { s.m_bPierceBlockChara = s.m_bPierceChara; }},
    {671, [](cEdShot& s) { s.m_nAimTarget = 0; }},
};

}  // namespace

void cEdShot::Load(cDataFile& file) {
  cSaveData::Load(file);
  ApplyUpgrades<cEdShot>(*this, kShotUpgrades);
}

}  // namespace velmora
