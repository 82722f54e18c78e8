// The changes that bring a command of an old file up to date. The kind is
// tested as the file holds it at each step: before 734 every kind from
// 24 on was one lower. Item commands follow the same table in the
// numbering of CmdTable; rows of kinds that an item never had are skipped.
#include <climits>

#include "objects/Cmd.h"
#include "objects/CmdTable.h"

namespace velmora {
namespace {

struct cCmdStep {
  uint32_t below;
  int kindMin;
  int kindMax;
  bool commandsOnly;  // absent for item commands
  void (*apply)(cEdCmd& cmd);
};

int32_t Get(const cEdCmd& c, int i) {
  return i < static_cast<int>(c.m_vParam.size()) ? c.m_vParam[static_cast<size_t>(i)] : 0;
}

void Set(cEdCmd& c, int i, int32_t value) {
  if (i < static_cast<int>(c.m_vParam.size())) c.m_vParam[static_cast<size_t>(i)] = value;
}

void Rise(cEdCmd& c, int i, int32_t by) { Set(c, i, Get(c, i) + by); }

void Size(cEdCmd& c, int count) { c.m_vParam.resize(static_cast<size_t>(count), 0); }

// Moves the entries from i up by one within the present size; the last
// one falls off.
void Insert(cEdCmd& c, int i) {
  for (int j = static_cast<int>(c.m_vParam.size()) - 1; j > i; --j) Set(c, j, Get(c, j - 1));
}

// Graphic numbers moved up by one, up to the last graphic.
constexpr int kLastGraphic = 119;

// ステータスの操作: the status rows of a side that names a status shifted
// when rows were added to the table.
void ShiftStatusRows(cEdCmd& c, int skippedObject, int limit, int by) {
  if (Get(c, 0) == 0 && Get(c, 3) != skippedObject && Get(c, 4) >= limit) Rise(c, 4, by);
  if (Get(c, 6) == 2 && Get(c, 12) != skippedObject && Get(c, 13) >= limit) Rise(c, 13, by);
}

void Arrange899(cEdCmd& c) {
  switch (Get(c, 0)) {
    case kCmdShot:
      if (Get(c, 1) >= 14) Rise(c, 1, 1);
      break;
    case kCmdSummonBlock:
    case kCmdSummonChara:
    case kCmdSummonItem:
    case kCmdEffect:
      if (Get(c, 1) >= 0) Rise(c, 1, 1);
      break;
    case kCmdStatusOp:
      Rise(c, 1, 1);
      if (Get(c, 1) >= 1) Rise(c, 1, 1);
      break;
    default:
      break;
  }
}

const cCmdStep kCmdUpgrades[] = {
    {145, 17, 17, false, [](cEdCmd& c) { Size(c, 11); }},
    {166, 35, 35, false, [](cEdCmd& c) { Size(c, 2); Set(c, 1, 1); }},
    {168, 22, 22, false, [](cEdCmd& c) { ShiftStatusRows(c, 2, 10, 1); }},
    {189, 21, 21, false, [](cEdCmd& c) { Size(c, 16); Insert(c, 2); Set(c, 2, 0); }},
    {194, 31, 31, false, [](cEdCmd& c) { Size(c, 16); Insert(c, 6); Set(c, 6, 1); }},
    {195, 29, 30, false, [](cEdCmd& c) { Size(c, 3); Insert(c, 1); Set(c, 1, 0); }},
    {203, 14, 15, true, [](cEdCmd& c) { Size(c, 0); }},
    {203, 16, 16, true, [](cEdCmd& c) { Size(c, 4); }},
    {203, 22, 22, false, [](cEdCmd& c) { ShiftStatusRows(c, 2, 5, 1); }},
    {210, 23, 23, false, [](cEdCmd& c) { if (Get(c, 0) != 2 && Get(c, 1) >= 6) Rise(c, 1, 1); }},
    {219, 25, 25, false, [](cEdCmd& c) { if (Get(c, 0) == 3 && Get(c, 1) < kLastGraphic) Rise(c, 1, 1); }},
    {220, 11, 11, true, [](cEdCmd& c) { if (c.m_pShot && c.m_pShot->m_nGraphic < kLastGraphic) c.m_pShot->m_nGraphic += 1; }},
    {514, 5, 5, true,
     [](cEdCmd& c) {
       if (!c.m_pMove) return;
       c.m_pMove->m_nAngle = c.m_pMove->m_nAngleClone = 0;
       c.m_pMove->m_bAngleMirror = 1;
     }},
    {545, 19, 19, false, [](cEdCmd& c) { Size(c, 19); Set(c, 10, 1); }},
    {545, 31, 31, false, [](cEdCmd& c) { Size(c, 16); Set(c, 11, 0); }},
    {546, 19, 19, false, [](cEdCmd& c) { Set(c, 10, Get(c, 0) == 0 || Get(c, 0) == 7 ? 1 : 0); }},
    {547, 19, 19, false,
     [](cEdCmd& c) {
       Size(c, 19);
       for (int i : {11, 12, 13, 15}) Set(c, i, 0);
       Set(c, 14, 1);
     }},
    {547, 31, 31, false, [](cEdCmd& c) { Size(c, 16); Set(c, 12, 0); Set(c, 13, 0); }},
    {556, 19, 19, false, [](cEdCmd& c) { Size(c, 19); Set(c, 16, 1); }},
    {722, 17, 17, false, [](cEdCmd& c) { if (Get(c, 0) >= 2) Rise(c, 0, 1); }},
    {723, 19, 19, false, [](cEdCmd& c) { Size(c, 19); Set(c, 17, 0); }},
    {723, 31, 31, false, [](cEdCmd& c) { Size(c, 16); Set(c, 14, 0); }},
    {726, 37, 37, false, [](cEdCmd& c) { Size(c, 5); Set(c, 0, 11); }},
    {727, 37, 37, false,
     [](cEdCmd& c) {
       if (Get(c, 0) != 11) return;
       for (int limit : {2, 3, 4, 14, 15, 16, 17}) {
         if (Get(c, 1) >= limit) Rise(c, 1, 1);
       }
     }},
    {734, 24, INT_MAX, false,
     [](cEdCmd& c) {
       c.m_nKind += 1;
       if (c.TableKind() == kCmdArrange && Get(c, 0) >= 24) Rise(c, 0, 1);
     }},
    {747, 21, 21, false, [](cEdCmd& c) { Size(c, 16); Set(c, 10, 0); Set(c, 11, 1); Set(c, 14, 0); }},
    {760, 16, 16, true, [](cEdCmd& c) { Size(c, 4); Set(c, 3, 0); }},
    {764, 16, 16, true, [](cEdCmd& c) { c.m_pCondList.Make().m_bEnabled = 0; }},
    {767, 9, 9, false, [](cEdCmd& c) { if (Get(c, 0) >= 4) Rise(c, 0, 6); }},
    {767, 20, 20, false, [](cEdCmd& c) { if (c.m_pMove && c.m_pMove->m_nAimType >= 2) c.m_pMove->m_nAimType += 3; }},
    {767, 21, 21, false, [](cEdCmd& c) { Size(c, 16); Insert(c, 0); Set(c, 0, 0); }},
    {767, 22, 22, false,
     [](cEdCmd& c) {
       if (Get(c, 0) == 0 && Get(c, 3) >= 2) Rise(c, 3, 3);
       if (Get(c, 6) == 2 && Get(c, 12) >= 2) Rise(c, 12, 3);
     }},
    {767, 23, 23, false, [](cEdCmd& c) { if (Get(c, 0) >= 2) Rise(c, 0, 3); }},
    {820, 23, 23, false, [](cEdCmd& c) { Size(c, 5); }},
    {879, 28, 28, false, [](cEdCmd& c) { Size(c, 2); Set(c, 1, 0); }},
    {882, 20, 20, false, [](cEdCmd& c) { if (c.m_pMove) c.m_pMove->m_bTargetX = c.m_pMove->m_bTargetY = 1; }},
    {882, 22, 22, false,
     [](cEdCmd& c) {
       Size(c, 22);
       Set(c, 18, 0);
       Set(c, 19, 0);
       ShiftStatusRows(c, 5, 6, 2);
     }},
    {891, 19, 19, false, [](cEdCmd& c) { Size(c, 19); if (Get(c, 0) == 8) Set(c, 0, 9); }},
    {891, 29, 29, false, [](cEdCmd& c) { Size(c, 9); if (Get(c, 1) == 4) Set(c, 1, 5); }},
    {891, 32, 32, false, [](cEdCmd& c) { Size(c, 16); if (Get(c, 1) == 4) Set(c, 1, 5); }},
    {892, 20, 20, false, [](cEdCmd& c) { if (c.m_pMove) c.m_pMove->m_nWarpOrigin = 2; }},
    {892, 22, 22, false, [](cEdCmd& c) { Size(c, 22); Set(c, 20, 2); Set(c, 21, 0); }},
    {898, 38, 38, false, [](cEdCmd& c) { if (Get(c, 0) == kCmdPicture && Get(c, 1) >= 0) Rise(c, 1, 1); }},
    {899, 38, 38, false, Arrange899},
    {915, 17, 17, false, [](cEdCmd& c) { Size(c, 11); }},
    {944, 17, 17, false, [](cEdCmd& c) { Size(c, 11); Set(c, 10, 1); }},
};

}  // namespace

void UpgradeCmd(cEdCmd& cmd) {
  const bool item = cmd.m_bItemCmd != 0;
  for (const cCmdStep& step : kCmdUpgrades) {
    if (g_nFileVersion >= step.below || (item && step.commandsOnly)) continue;
    const int kind = cmd.TableKind();
    if (kind >= step.kindMin && kind <= step.kindMax) step.apply(cmd);
  }
}

}  // namespace velmora
