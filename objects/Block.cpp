#include "objects/Block.h"

#include "objects/PaletteTables.h"
#include "objects/Upgrade.h"

namespace velmora {
namespace {

const cUpgradeStep<cEdBlock> kBlockUpgrades[] = {
    {219, &RenumberShotGraphic<cEdBlock>},
};

}  // namespace

void cEdBlock::ResetEntry() {
  Reset();
  m_nBlockType = 1;
  m_nNoHitForce = -1;
  m_nPosX = m_nPosY = 0;
  m_vCond.clear();
  ResetInheritFlags(kBlockInheritGroups);
}

void cEdBlock::Register(uint32_t) {
  ClearLists();
  RegisterHead();
  Add2(VFIELD(m_nGraphicNo));
  Add1(VFIELD(m_nGraphicKind));
  Add2(VFIELD(m_nGraphicFrame));
  Add1(VFIELD(m_bFront));
  Add1(VFIELD(m_nTransparent));
  Add1(VFIELD(m_nMarkShow));
  Add2(VFIELD(m_nMarkNo));
  Add1(VFIELD(m_nBlockType));
  Add1(VFIELD(m_nNoHitForce));
  Add1(VFIELD(m_nAction));
  Add4(VFIELD(m_nActionX));
  Add1(VFIELD(m_nGetItemSrc));
  Add2(VFIELD(m_nGetItemNo));
  Add1(VFIELD(m_bNoSummon));
  AddString(VSTRING(m_strName));
}

void cEdBlock::Load(cDataFile& file) {
  cSaveData::Load(file);
  LoadPosition(file);
  LoadInheritAndConds(file);
  ApplyUpgrades<cEdBlock>(*this, kBlockUpgrades);
  ApplyInherit();
  CheckRefs();
}

void cEdBlock::Save(cDataFile& file) {
  CheckRefs();
  cSaveData::Save(file);
  SavePosition(file);
  SaveInheritAndConds(file);
}

}  // namespace velmora
