#include "objects/Cond.h"

#include "objects/CondTables.h"
#include "objects/ObjectList.h"
#include "objects/Upgrade.h"

namespace velmora {

void cEdCond::Register(uint32_t version) {
  ClearLists();
  Add1(VFIELD(m_nKind));
  Add4(VFIELD(m_nValue));
  if (version >= 110) {
    Add4(VFIELD(m_nRandMin));
    Add4(VFIELD(m_nRandMax));
    Add1(VFIELD(m_nLeftObject));
    Add1(VFIELD(m_nLeftStatus));
    Add1(VFIELD(m_nLeftType));
    Add1(VFIELD(m_nLeftScope));
    Add2(VFIELD(m_nLeftVar));
    Add1(VFIELD(m_nRightType));
    Add1(VFIELD(m_nRightObject));
    Add1(VFIELD(m_nRightStatus));
    Add1(VFIELD(m_nRightScope));
    Add2(VFIELD(m_nRightVar));
  } else {
    Add2(&g_nDropped, 1, "retired");
    Add2(&g_nDropped, 1, "retired");
  }
  Add1(VFIELD(m_nRelation));
  if (version >= 43) Add1(VFIELD(m_bPercent));
  if (version >= 883) {
    Add1(VFIELD(m_nLeftCoord));
    Add1(VFIELD(m_nRightCoord));
  }
  if (version >= 893) {
    Add1(VFIELD(m_nLeftGiantPos));
    Add1(VFIELD(m_nRightGiantPos));
  }
  Add1(VFIELD(m_nDistAxis));
}

namespace {

// The status lists grew rows over time: a status at or past `limit`, of an
// object other than `skippedObject`, moves down by `by`.
void ShiftStatuses(cEdCond& c, int skippedObject, int limit, int by) {
  if (c.m_nLeftType == 0 && c.m_nLeftObject != skippedObject && c.m_nLeftStatus >= limit) c.m_nLeftStatus += by;
  if (c.m_nRightType == 2 && c.m_nRightObject != skippedObject && c.m_nRightStatus >= limit) c.m_nRightStatus += by;
}

const cUpgradeStep<cEdCond> kCondUpgrades[] = {
    {160, [](cEdCond& c) { if (c.m_nKind >= 5) c.m_nKind += 2; }},
    {161, [](cEdCond& c) { if (c.m_nKind == kCondStatus3 && c.m_nLeftStatus == 2) c.m_nRelation ^= 1; }},
    {168, [](cEdCond& c) { if (c.m_nKind == kCondStatus) ShiftStatuses(c, 2, 10, 1); }},
    {203, [](cEdCond& c) { if (c.m_nKind == kCondStatus) ShiftStatuses(c, 2, 5, 1); }},
    {210,
     [](cEdCond& c) {
       if (c.m_nKind == kCondStatus2 && c.m_nLeftObject != 2 && c.m_nLeftStatus >= 6) c.m_nLeftStatus += 1;
     }},
    {657, [](cEdCond& c) { if (c.m_nKind == kCondDistance) c.m_nLeftObject = 0; }},
    {745, [](cEdCond& c) { if (c.m_nKind == kCondDistance) c.m_nLeftType = 0; }},
    {746,
     [](cEdCond& c) {
       if (c.m_nKind == kCondDistance) c.m_nRightType = c.m_nRightObject = 1;
     }},
    {767,
     [](cEdCond& c) {
       if (c.m_nKind != kCondStatus && c.m_nKind != kCondStatus2) return;
       if (c.m_nLeftObject >= 2) c.m_nLeftObject += 3;
       if (c.m_nRightObject >= 2) c.m_nRightObject += 3;
     }},
    {883,
     [](cEdCond& c) {
       if (c.m_nKind != kCondStatus) return;
       c.m_nLeftCoord = c.m_nRightCoord = 0;
       ShiftStatuses(c, kObjectSystem, 6, 2);
     }},
    {892,
     [](cEdCond& c) {
       if (c.m_nKind == kCondStatus) c.m_nLeftGiantPos = c.m_nRightGiantPos = 0;
     }},
};

}  // namespace

void cEdCond::Load(cDataFile& file) {
  cSaveData::Load(file);
  ApplyUpgrades<cEdCond>(*this, kCondUpgrades);
}

}  // namespace velmora
