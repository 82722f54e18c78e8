#include "project/whereused/RecordUses.h"

#include <algorithm>

#include "core/SystemText.h"
#include "objects/CmdParamRefs.h"
#include "objects/CmdSummary.h"
#include "objects/CmdSummaryParts.h"
#include "objects/CondRules.h"
#include "objects/CondSummary.h"
#include "objects/CondTables.h"
#include "objects/GValInfo.h"
#include "objects/ObjectList.h"
#include "objects/PaletteTables.h"
#include "objects/code/CodeToken.h"

namespace velmora {
namespace {

using cTargets = std::vector<cUseTarget>;

// Emits one use per target, all with the same summary line, which is only
// made when there is something to show it for. A line that names a thing
// twice ("C1 = C1 + 1") is one use of it.
template <class MakeWhat>
void Emit(cTargets targets, const cUse& place, std::vector<cUse>& uses, MakeWhat makeWhat) {
  if (targets.empty()) return;
  std::sort(targets.begin(), targets.end());
  targets.erase(std::unique(targets.begin(), targets.end()), targets.end());
  const std::string what = makeWhat();
  for (const cUseTarget& target : targets) {
    cUse& use = uses.emplace_back(place);
    use.target = target;
    use.what = what;
  }
}

eUseKind VarKind(int scope) { return scope == kScopeStage ? eUseKind::VarStage : eUseKind::VarCommon; }

void AddVar(cTargets& targets, int scope, int number) {
  if ((scope == kScopeCommon || scope == kScopeStage) && number >= 1) targets.push_back({VarKind(scope), number});
}

// The animation sets and the sword types have a real row 0; in the other
// lists row 0 is なし.
void AddRow(cTargets& targets, eDbList list, int row) {
  const bool realZero = list == eDbList::AnimeSet || list == eDbList::SwordType;
  const eUseKind kind = UseKindOf(list);
  if (kind != eUseKind::Count && (row > 0 || (row == 0 && realZero))) targets.push_back({kind, row});
}

// The stored values that choose the common and the stage palette: the
// inherit and item sources count from なし, the summon and get-item
// sources from the common palette.
struct cPaletteChoice {
  int common;
  int stage;
};
constexpr cPaletteChoice kInheritOrItemSource{kInheritCommon, kInheritStage};
constexpr cPaletteChoice kSummonSource{0, 1};

void AddEntry(cTargets& targets, ePaletteList list, int source, cPaletteChoice choice, int number) {
  if (number < 1) return;
  if (source == choice.common) targets.push_back({UseKindOf(list, ePalette::Common), number});
  if (source == choice.stage) targets.push_back({UseKindOf(list, ePalette::Stage), number});
}

cTargets CondTargets(const cEdCond& c) {
  cTargets targets;
  if (c.m_nKind == kCondCommonVar) AddVar(targets, kScopeCommon, c.m_nLeftVar);
  if (c.m_nKind == kCondStageVar) AddVar(targets, kScopeStage, c.m_nLeftVar);
  if (c.m_nKind == kCondStatus) {
    AddVar(targets, SideVarScope(c, eCondSide::Left), c.m_nLeftVar);
    AddVar(targets, SideVarScope(c, eCondSide::Right), c.m_nRightVar);
  }
  return targets;
}

void CollectConds(const std::vector<cEdCond>& conds, cUse place, std::vector<cUse>& uses) {
  for (size_t i = 0; i < conds.size(); ++i) {
    place.cond = static_cast<int>(i) + 1;
    Emit(CondTargets(conds[i]), place, uses, [&] { return CondSummaryText(conds[i]); });
  }
}

// ステータスの操作: a variable on the left (P0 1: scope P1, number P2) and
// on the right (P6 3: scope P10, number P11).
void StatusOpVars(const cEdCmd& cmd, cTargets& targets) {
  constexpr int kLeftIsVar = 1, kRightIsVar = 3;
  if (Param(cmd, 0) == kLeftIsVar) AddVar(targets, Param(cmd, 1), Param(cmd, 2));
  if (Param(cmd, 6) == kRightIsVar) AddVar(targets, Param(cmd, 10), Param(cmd, 11));
}

void ParamRows(const cEdCmd& cmd, int kind, cTargets& targets) {
  for (const cParamRef& ref : kCmdParamRefs) {
    if (ref.kind != kind || (ref.whenP0 != kAnyP0 && Param(cmd, 0) != ref.whenP0)) continue;
    if (static_cast<size_t>(ref.index) < cmd.m_vParam.size()) AddRow(targets, ref.list, Param(cmd, ref.index));
  }
}

void ShotRefs(const cEdCmd& cmd, int kind, cTargets& targets) {
  if (!cmd.m_pShot) return;
  const cEdShot& shot = *cmd.m_pShot;
  if (kind == kCmdShot || kind == kCmdSword) {
    AddRow(targets, eDbList::Effect, shot.m_nEffect);
    AddEntry(targets, ePaletteList::Item, shot.m_nGetItemSrc, kInheritOrItemSource, shot.m_nGetItemNo);
  }
  if (kind == kCmdSword) AddRow(targets, eDbList::SwordType, shot.m_nMoveType);
  constexpr struct {
    int kind;
    ePaletteList list;
  } kSummons[] = {{kCmdSummonBlock, ePaletteList::Block},
                  {kCmdSummonChara, ePaletteList::Chara},
                  {kCmdSummonItem, ePaletteList::Item}};
  for (const auto& summon : kSummons) {
    if (summon.kind == kind) AddEntry(targets, summon.list, shot.m_nSummonSrc, kSummonSource, shot.m_nSummonNo);
  }
}

cTargets CmdTargets(const cEdCmd& cmd) {
  cTargets targets;
  const int kind = cmd.TableKind();
  AddRow(targets, eDbList::Sound, cmd.m_nSound);
  AddRow(targets, eDbList::Anime, cmd.m_nAnime);
  ParamRows(cmd, kind, targets);
  ShotRefs(cmd, kind, targets);
  if (kind == kCmdStatusOp) StatusOpVars(cmd, targets);
  if (kind == kCmdArrange) AddVar(targets, Param(cmd, 3), Param(cmd, 4));
  if (kind == kCmdGetItem) AddEntry(targets, ePaletteList::Item, Param(cmd, 0), kSummonSource, Param(cmd, 1));
  if (kind == kCmdCode) {
    ForEachCodeVariable(cmd.m_strText, [&](int scope, int number) { AddVar(targets, scope, number); });
  }
  return targets;
}

void CollectCmds(const std::vector<cEdCmd>& cmds, cUse place, std::vector<cUse>& uses) {
  for (size_t i = 0; i < cmds.size(); ++i) {
    place.cmd = static_cast<int>(i) + 1;
    CollectCmdUses(cmds[i], place, uses);
  }
}

// A field of an entry that names a database row or a common entry.
template <class tEntry>
struct cFieldRef {
  const char* label;
  void (*add)(const tEntry& entry, cTargets& targets);
};

template <class tEntry>
void CollectFields(const tEntry& entry, std::span<const cFieldRef<tEntry>> fields, const cUse& place,
                   std::vector<cUse>& uses) {
  for (const cFieldRef<tEntry>& field : fields) {
    cTargets targets;
    field.add(entry, targets);
    Emit(targets, place, uses, [&] { return std::string(SysText(field.label)); });
  }
}

template <class tEntry, ePaletteList kList>
void AddInheritSource(const tEntry& entry, cTargets& targets) {
  AddEntry(targets, kList, entry.m_nInheritSrc, kInheritOrItemSource, entry.m_nInheritNo);
}

template <class tEntry>
void AddOwnBitmap(const tEntry& entry, cTargets& targets) {
  if (entry.m_nGraphicKind == kGraphicKindOwnBmp) AddRow(targets, eDbList::BmpCharaExc, entry.m_nGraphicNo);
}

const cFieldRef<cEdBlock> kBlockFields[] = {
    {"継承元", &AddInheritSource<cEdBlock, ePaletteList::Block>},
    {"取得アイテム",
     [](const cEdBlock& b, cTargets& t) {
       AddEntry(t, ePaletteList::Item, b.m_nGetItemSrc, kInheritOrItemSource, b.m_nGetItemNo);
     }},
    {"グラフィック", &AddOwnBitmap<cEdBlock>},
};

const cFieldRef<cEdChara> kCharaFields[] = {
    {"継承元", &AddInheritSource<cEdChara, ePaletteList::Chara>},
    {"グラフィック", &AddOwnBitmap<cEdChara>},
    {"アニメセット", [](const cEdChara& c, cTargets& t) { AddRow(t, eDbList::AnimeSet, c.m_nAnimeSet); }},
    {"初期のキャラエフェクト", [](const cEdChara& c, cTargets& t) { AddRow(t, eDbList::CharaEffect, c.m_nStartEffect); }},
    {"死亡時のキャラエフェクト", [](const cEdChara& c, cTargets& t) { AddRow(t, eDbList::CharaEffect, c.m_nDeathEffect); }},
    {"体当たりのエフェクト", [](const cEdChara& c, cTargets& t) { AddRow(t, eDbList::Effect, c.m_nBodyEffect); }},
};

const cFieldRef<cEdItem> kItemFields[] = {
    {"継承元", &AddInheritSource<cEdItem, ePaletteList::Item>},
    {"グラフィック", &AddOwnBitmap<cEdItem>},
    {"効果音", [](const cEdItem& i, cTargets& t) { AddRow(t, eDbList::Sound, i.m_nGetSound); }},
};

}  // namespace

void CollectCmdUses(const cEdCmd& cmd, const cUse& place, std::vector<cUse>& uses) {
  Emit(CmdTargets(cmd), place, uses, [&] { return CmdSummaryText(cmd); });
  if (cmd.m_pCondList) CollectConds(cmd.m_pCondList->m_vCond, place, uses);
}

void CollectEntryUses(const cEdBlock& block, const cUse& place, std::vector<cUse>& uses) {
  cObjectContextScope context(eObjectContext::BlockEditor);
  CollectFields<cEdBlock>(block, kBlockFields, place, uses);
  CollectConds(block.m_vCond, place, uses);
}

void CollectEntryUses(const cEdChara& chara, const cUse& place, std::vector<cUse>& uses) {
  cObjectContextScope context(eObjectContext::CharaEditor);
  CollectFields<cEdChara>(chara, kCharaFields, place, uses);
  CollectConds(chara.m_vCond, place, uses);
  cUse inFlow = place;
  for (size_t i = 0; i < chara.m_vFlow.size(); ++i) {
    inFlow.flow = static_cast<int>(i) + 1;
    CollectConds(chara.m_vFlow[i].m_vCond, inFlow, uses);
    CollectCmds(chara.m_vFlow[i].m_vCmd, inFlow, uses);
  }
}

void CollectEntryUses(const cEdItem& item, const cUse& place, std::vector<cUse>& uses) {
  cObjectContextScope context(eObjectContext::ItemEditor);
  CollectFields<cEdItem>(item, kItemFields, place, uses);
  CollectConds(item.m_vCond, place, uses);
  CollectCmds(item.m_vCmd, place, uses);
}

}  // namespace velmora
