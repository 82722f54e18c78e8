#include "objects/Chara.h"

#include "objects/PlainVector.h"
#include "objects/Upgrade.h"

namespace velmora {
namespace {

// Groups added in the middle of the flags: old files gain a set byte there.
void AddDefenseGroup(cEdChara& chara) {
  chara.m_nDefense = 0;
  InsertFlag(chara.m_bbInherit, kCharaInheritGroups, 27, 1);
}

void ResetEffectModes(cEdChara& chara) {
  chara.m_nStartEffectMode = 0;
  chara.m_nDeathEffectMode = 0;
}

void AddBodyHitGroup(cEdChara& chara) {
  chara.m_nBodyHitRange = 0;
  InsertFlag(chara.m_bbInherit, kCharaInheritGroups, 24, 1);
}

// A range was inserted before the third entry of the list.
void ShiftBodyHitRange(cEdChara& chara) {
  if (chara.m_nBodyHitRange >= 2) ++chara.m_nBodyHitRange;
}

void AddAutoScrollGroup(cEdChara& chara) {
  chara.m_bAutoScrollSync = 0;
  InsertFlag(chara.m_bbInherit, kCharaInheritGroups, 21, 1);
}

void SetInvincibleFx(cEdChara& chara) { chara.m_nInvincibleFx = 1; }

const cUpgradeStep<cEdChara> kCharaUpgrades[] = {
    {168, &AddDefenseGroup},   {196, &ResetEffectModes},
    {201, &AddBodyHitGroup},   {206, &ShiftBodyHitRange},
    {210, &AddAutoScrollGroup}, {219, &RenumberShotGraphic<cEdChara>},
    {285, &SetInvincibleFx},
};

}  // namespace

void cEdChara::ResetEntry() {
  Reset();
  m_nGraphicKind = 1;
  m_nZ = 3;
  m_bStartEffectLoop = 1;
  m_nControl = 1;
  m_nForce = 1;
  m_bFixDir = 1;
  m_nGiant = 1;
  m_nHp = 10;
  m_nStopEase = 10;
  m_bHoldItem = 1;
  m_nPosX = m_nPosY = 0;
  m_nHeldItem = 0;
  m_vCond.clear();
  m_vFlow.clear();
  ResetInheritFlags(kCharaInheritGroups);
}

void cEdChara::Register(uint32_t version) {
  ClearLists();
  RegisterHead();
  Add1(VFIELD(m_bFaceRight));
  Add1(VFIELD(m_nCloneCount));
  Add2(VFIELD(m_nOffsetX));
  Add2(VFIELD(m_nOffsetXClone));
  Add2(VFIELD(m_nOffsetY));
  Add2(VFIELD(m_nOffsetYClone));
  Add1(VFIELD(m_bOffsetXFlip));
  Add1(VFIELD(m_bOffsetYFlip));
  Add2(VFIELD(m_nGraphicNo));
  Add1(VFIELD(m_nGraphicKind));
  Add2(VFIELD(m_nGraphicShift));
  Add2(VFIELD(m_nAnimeSet));
  Add1(VFIELD(m_nZ));
  Add1(VFIELD(m_nTransparent));
  Add2(VFIELD(m_nStartEffect));
  if (version >= 196) Add1(VFIELD(m_nStartEffectMode));
  Add1(VFIELD(m_bStartEffectLoop));
  Add2(VFIELD(m_nDeathEffect));
  if (version >= 196) Add1(VFIELD(m_nDeathEffectMode));
  Add1(VFIELD(m_nMarkShow));
  Add2(VFIELD(m_nMarkNo));
  Add1(VFIELD(m_nControl));
  Add1(VFIELD(m_nPlayerNo));
  Add1(VFIELD(m_nForce));
  Add1(VFIELD(m_nCharaId));
  Add1(VFIELD(m_nFly));
  Add1(VFIELD(m_bFixDir));
  Add1(VFIELD(m_nInvincible));
  if (version >= 285) Add1(VFIELD(m_nInvincibleFx));
  Add1(VFIELD(m_nBlock));
  Add1(VFIELD(m_nGiant));
  if (version >= 210) Add1(VFIELD(m_bAutoScrollSync));
  Add1(VFIELD(m_nSightType));
  Add1(VFIELD(m_nSightRange));
  Add4(VFIELD(m_nHp));
  Add4(VFIELD(m_nSp));
  Add2(VFIELD(m_nStopEase));
  if (version >= 201) Add1(VFIELD(m_nBodyHitRange));
  Add4(VFIELD(m_nBodyPower));
  Add1(VFIELD(m_nBodyImpact));
  Add2(VFIELD(m_nBodyEffect));
  if (version >= 168) Add4(VFIELD(m_nDefense));
  Add1(VFIELD(m_nImpactResist));
  Add4(VFIELD(m_nScore));
  Add1(VFIELD(m_bHoldItem));
  Add1(VFIELD(m_bGroup));
  Add2(VFIELD(m_nGroupNo));
  Add1(VFIELD(m_nActRange));
  Add1(VFIELD(m_nActJudge));
  AddString(VSTRING(m_strName));
}

void cEdChara::Load(cDataFile& file) {
  cSaveData::Load(file);
  LoadPosition(file);
  file.Read(&m_nHeldItem, sizeof m_nHeldItem);
  LoadInheritAndConds(file);
  LoadVector(m_vFlow, file);
  ApplyUpgrades<cEdChara>(*this, kCharaUpgrades);
  ApplyInherit();
  CheckRefs();
}

void cEdChara::Save(cDataFile& file) {
  CheckRefs();
  cSaveData::Save(file);
  SavePosition(file);
  file.Write(&m_nHeldItem, sizeof m_nHeldItem);
  SaveInheritAndConds(file);
  SaveVector(m_vFlow, file);
}

void cEdChara::VisitNested(cNestedVisitor& visitor) const {
  VisitInheritAndConds(visitor);
  visitor.Numbers("m_nHeldItem", {m_nHeldItem});
  VisitVector(visitor, "m_vFlow", m_vFlow);
}

}  // namespace velmora
