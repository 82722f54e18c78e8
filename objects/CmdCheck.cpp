// The two reference checks of a command: against the database lists
// (CheckCmd) and against the palettes (CheckCmdRefs).
#include <array>
#include <iterator>

#include "objects/Cmd.h"
#include "objects/CmdParamRefs.h"
#include "objects/CmdTable.h"
#include "objects/Flow.h"
#include "objects/RefSizes.h"

namespace velmora {
namespace {

bool Beyond(int value, eDbList list) { return value >= RefSizes().DbListSize(list); }

constexpr bool OneRowPerKind() {
  for (size_t i = 0; i < std::size(kCmdParamRefs); ++i) {
    for (size_t j = 0; j < i; ++j) {
      if (kCmdParamRefs[i].kind == kCmdParamRefs[j].kind) return false;
    }
  }
  return true;
}
static_assert(OneRowPerKind(), "a kind with two parameter rows needs a list of rows, not one");

// The row of kCmdParamRefs for each kind, -1 for a kind whose parameters name
// no database row: commands by the million pass through here on a load.
constexpr size_t kRefKinds = 256;
constexpr std::array<int8_t, kRefKinds> kRefRowOfKind = [] {
  std::array<int8_t, kRefKinds> rows{};
  rows.fill(-1);
  for (size_t i = 0; i < std::size(kCmdParamRefs); ++i) rows[static_cast<size_t>(kCmdParamRefs[i].kind)] = static_cast<int8_t>(i);
  return rows;
}();

// `kind` is the command's kind in CmdTable numbering.
void CheckParamRefs(cEdCmd& c, int kind) {
  if (kind < 0 || static_cast<size_t>(kind) >= kRefKinds || kRefRowOfKind[static_cast<size_t>(kind)] < 0) return;
  const cParamRef& ref = kCmdParamRefs[kRefRowOfKind[static_cast<size_t>(kind)]];
  if (static_cast<size_t>(ref.index) >= c.m_vParam.size()) return;
  if (ref.whenP0 != kAnyP0 && c.m_vParam[0] != ref.whenP0) return;
  int32_t& value = c.m_vParam[static_cast<size_t>(ref.index)];
  if (Beyond(value, ref.list)) value = ref.repaired;
}

void CheckSword(cEdCmd& c, int kind) {
  if (kind != kCmdSword || !c.m_pShot) return;
  if (Beyond(c.m_pShot->m_nMoveType, eDbList::SwordType)) c.m_pShot->m_nMoveType = 0;
  if (std::optional<int> time = RefSizes().SwordTypeTime(c.m_pShot->m_nMoveType)) {
    c.m_nTime = static_cast<int16_t>(*time);
  }
}

int PaletteSize(int palette, ePaletteList list) {
  return RefSizes().PaletteListSize(palette == 0 ? ePalette::Common : ePalette::Stage, list);
}

// 取得アイテム of a shot or sword: its palette is 1 common or 2 stage.
void CheckGetItem(cEdShot& shot) {
  if (shot.m_nGetItemSrc != 1 && shot.m_nGetItemSrc != 2) return;
  if (shot.m_nGetItemNo >= PaletteSize(shot.m_nGetItemSrc - 1, ePaletteList::Item)) {
    shot.m_nGetItemSrc = 0;
    shot.m_nGetItemNo = 0;
  }
}

void CheckSummon(cEdShot& shot, ePaletteList list) {
  if (shot.m_nSummonSrc > 1) return;
  if (shot.m_nSummonNo >= PaletteSize(shot.m_nSummonSrc, list)) shot.m_nSummonNo = 1;
}

// アイテムの取得 in either numbering: parameter 0 the palette (0 common,
// 1 stage), parameter 1 the entry.
void CheckTakenItem(cEdCmd& c) {
  if (c.m_vParam.size() < 2 || c.m_vParam[0] < 0 || c.m_vParam[0] > 1) return;
  if (c.m_vParam[1] >= PaletteSize(c.m_vParam[0], ePaletteList::Item)) c.m_vParam[1] = 1;
}

void CheckCharaCmdRefs(cEdCmd& c) {
  switch (c.m_nKind) {
    case kCmdShot:
    case kCmdSword:
      if (c.m_pShot) CheckGetItem(*c.m_pShot);
      break;
    case kCmdSummonBlock:
      if (c.m_pShot) CheckSummon(*c.m_pShot, ePaletteList::Block);
      break;
    case kCmdSummonChara:
      if (c.m_pShot) CheckSummon(*c.m_pShot, ePaletteList::Chara);
      break;
    case kCmdSummonItem:
      if (c.m_pShot) CheckSummon(*c.m_pShot, ePaletteList::Item);
      break;
    case kCmdGetItem:
      CheckTakenItem(c);
      break;
    default:
      break;
  }
}

}  // namespace

void cEdCmd::CheckCmd() {
  ClearBeyond(m_nAnime, eDbList::Anime);
  ClearBeyond(m_nSound, eDbList::Sound);
  const size_t params = static_cast<size_t>(CmdParamCount(m_bItemCmd != 0, m_nKind));
  if (m_vParam.size() != params) m_vParam.resize(params, 0);
  const int kind = TableKind();
  CheckSword(*this, kind);
  CheckParamRefs(*this, kind);
  for (cEdFlow& flow : m_vSubFlow) flow.CheckFlow();
}

void cEdCmd::CheckCmdRefs() {
  if (!m_bItemCmd) {
    CheckCharaCmdRefs(*this);
  } else if (m_nKind == kCmdGetItem - kItemKindOffset) {
    CheckTakenItem(*this);
  }
  for (cEdFlow& flow : m_vSubFlow) {
    for (cEdCmd& cmd : flow.m_vCmd) cmd.CheckCmdRefs();
  }
}

}  // namespace velmora
