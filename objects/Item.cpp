#include "objects/Item.h"

#include "objects/PaletteTables.h"
#include "objects/Upgrade.h"

namespace velmora {
namespace {

const cUpgradeStep<cEdItem> kItemUpgrades[] = {
    {219, &RenumberShotGraphic<cEdItem>},
};

}  // namespace

void cEdItem::ResetEntry() {
  Reset();
  m_nGraphicKind = 2;
  m_nZ = 6;
  m_bGetShow = 1;
  m_nGiant = 1;
  m_nPosX = m_nPosY = 0;
  m_vCond.clear();
  m_vCmd.clear();
  ResetInheritFlags(kItemInheritGroups);
}

void cEdItem::Register(uint32_t) {
  ClearLists();
  RegisterHead();
  Add2(VFIELD(m_nOffsetX));
  Add2(VFIELD(m_nOffsetY));
  Add2(VFIELD(m_nGraphicNo));
  Add1(VFIELD(m_nGraphicKind));
  Add2(VFIELD(m_nGraphicFrame));
  Add1(VFIELD(m_nZ));
  Add1(VFIELD(m_nTransparent));
  Add1(VFIELD(m_nMarkShow));
  Add2(VFIELD(m_nMarkNo));
  Add1(VFIELD(m_bGetShow));
  Add1(VFIELD(m_nGetType));
  Add1(VFIELD(m_nGiant));
  Add2(VFIELD(m_nGetSound));
  AddString(VSTRING(m_strName));
}

void cEdItem::Load(cDataFile& file) {
  cSaveData::Load(file);
  LoadPosition(file);
  LoadInheritAndConds(file);
  LoadVector(m_vCmd, file);
  ApplyUpgrades<cEdItem>(*this, kItemUpgrades);
  ApplyInherit();
  CheckRefs();
}

void cEdItem::Save(cDataFile& file) {
  CheckRefs();
  cSaveData::Save(file);
  SavePosition(file);
  SaveInheritAndConds(file);
  SaveVector(m_vCmd, file);
}

void cEdItem::VisitNested(cNestedVisitor& visitor) const {
  VisitInheritAndConds(visitor);
  VisitVector(visitor, "m_vCmd", m_vCmd);
}

}  // namespace velmora
