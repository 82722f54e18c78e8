#include "inspect/StageDiffText.h"

#include <algorithm>

#include "inspect/LineDiff.h"
#include "inspect/RecordFields.h"
#include "objects/CmdSummary.h"
#include "objects/CondSummary.h"
#include "objects/GValInfo.h"
#include "objects/ObjectList.h"
#include "platform/TextCodec.h"
#include "stage/StageDiff.h"

namespace velmora::inspect {
namespace {

constexpr const char* kLayerWords[] = {"block", "chara", "item"};

// One version with its names: summaries of its entries read its palette
// and its variables.
struct cSide {
  cStage& stage;
  std::vector<std::string> Lines(const std::vector<cEdCond>& conds, const std::vector<cEdCmd>& cmds) const {
    cStagePaletteScope palette(stage);
    cStageVarScope names(stage.m_vecStageVar);
    std::vector<std::string> lines;
    for (const cEdCond& cond : conds) lines.push_back("cond " + ToUtf8(CondSummaryText(cond)));
    for (const cEdCmd& cmd : cmds) lines.push_back("cmd " + ToUtf8(CmdSummaryText(cmd)));
    return lines;
  }
};

void AppendLineDiff(const std::string& head, const std::vector<std::string>& before,
                    const std::vector<std::string>& after, std::vector<std::string>& lines) {
  for (const std::string& line : LineDiff(before, after)) lines.push_back(head + line);
}

// The flows of a character by number; a flow only one side has stands
// against an empty one.
void DiffBody(const std::string& head, const cEdChara& was, const cSide& before, const cEdChara& is,
              const cSide& after, std::vector<std::string>& lines) {
  cObjectContextScope context(eObjectContext::CharaEditor);
  static const cEdFlow kNoFlow;
  const size_t flows = std::max(was.m_vFlow.size(), is.m_vFlow.size());
  for (size_t f = 0; f < flows; ++f) {
    const cEdFlow& a = f < was.m_vFlow.size() ? was.m_vFlow[f] : kNoFlow;
    const cEdFlow& b = f < is.m_vFlow.size() ? is.m_vFlow[f] : kNoFlow;
    if (a == b) continue;
    const std::string flowHead = head + " flow " + std::to_string(f + 1);
    if (f >= was.m_vFlow.size()) lines.push_back(flowHead + ": added");
    if (f >= is.m_vFlow.size()) lines.push_back(flowHead + ": removed");
    DiffRecordFields(flowHead + ": ", a, b, {"m_vCond", "m_vCmd"}, lines);
    AppendLineDiff(flowHead + ": ", before.Lines(a.m_vCond, a.m_vCmd), after.Lines(b.m_vCond, b.m_vCmd), lines);
  }
}

void DiffBody(const std::string& head, const cEdItem& was, const cSide& before, const cEdItem& is, const cSide& after,
              std::vector<std::string>& lines) {
  cObjectContextScope context(eObjectContext::ItemEditor);
  AppendLineDiff(head + ": ", before.Lines({}, was.m_vCmd), after.Lines({}, is.m_vCmd), lines);
}

void DiffBody(const std::string&, const cEdBlock&, const cSide&, const cEdBlock&, const cSide&, std::vector<std::string>&) {}

// The nested parts that DiffBody compares by its own terms.
std::vector<std::string_view> BodyParts(const cEdBlock&) { return {}; }
std::vector<std::string_view> BodyParts(const cEdChara&) { return {"m_vFlow"}; }
std::vector<std::string_view> BodyParts(const cEdItem&) { return {"m_vCmd"}; }

std::string Quoted(const std::string& cp932) { return "\xE3\x80\x8C" + ToUtf8(cp932) + "\xE3\x80\x8D"; }

template <class tEntry>
void DiffEntry(const std::string& head, const tEntry* was, const cSide& before, const tEntry* is, const cSide& after,
               std::vector<std::string>& lines) {
  if (!was && !is) return;
  if (!was || !is) {
    lines.push_back(head + (was ? ": removed " + Quoted(was->m_strName) : ": added " + Quoted(is->m_strName)));
    return;
  }
  if (*was == *is) return;
  DiffRecordFields(head + ": ", *was, *is, BodyParts(*was), lines);
  DiffBody(head, *was, before, *is, after, lines);
}

template <class tEntry>
const tEntry* At(const std::vector<tEntry>& list, size_t index) {
  return index < list.size() ? &list[index] : nullptr;
}

template <class tEntry>
void DiffPalette(const char* word, const std::vector<tEntry>& was, const cSide& before, const std::vector<tEntry>& is,
                 const cSide& after, std::vector<std::string>& lines) {
  // Element 0 is the blank entry, never shown.
  for (size_t i = 1; i < std::max(was.size(), is.size()); ++i) {
    DiffEntry(std::string("palette ") + word + " " + std::to_string(i), At(was, i), before, At(is, i), after, lines);
  }
}

template <class tEntry>
const tEntry* CellOf(const cStage& stage, const std::vector<tEntry>& layer, int x, int y) {
  if (x >= stage.m_nWidth || y >= stage.m_nHeight) return nullptr;
  const tEntry* cell = At(layer, static_cast<size_t>(stage.CellIndex(x, y)));
  return cell && IsOccupied(*cell) ? cell : nullptr;
}

void DiffCell(const cCellChange& change, const cSide& before, const cSide& after, std::vector<std::string>& lines) {
  const std::string head = "cell " + std::to_string(change.x) + "," + std::to_string(change.y) + " " +
                           kLayerWords[change.layer];
  const cStage& a = before.stage;
  const cStage& b = after.stage;
  const int x = change.x, y = change.y;
  if (change.layer == 0) DiffEntry(head, CellOf(a, a.m_vecBlockCell, x, y), before, CellOf(b, b.m_vecBlockCell, x, y), after, lines);
  if (change.layer == 1) DiffEntry(head, CellOf(a, a.m_vecCharaCell, x, y), before, CellOf(b, b.m_vecCharaCell, x, y), after, lines);
  if (change.layer == 2) DiffEntry(head, CellOf(a, a.m_vecItemCell, x, y), before, CellOf(b, b.m_vecItemCell, x, y), after, lines);
}

}  // namespace

std::vector<std::string> StageDiffLines(cStage& before, cStage& after) {
  const cSide a{before}, b{after};
  std::vector<std::string> lines;
  DiffRecordFields("settings ", before, after,
                   {"m_vecBlockPlt", "m_vecCharaPlt", "m_vecItemPlt", "m_vecBlockCell", "m_vecCharaCell", "m_vecItemCell"},
                   lines);
  DiffPalette("block", before.m_vecBlockPlt, a, after.m_vecBlockPlt, b, lines);
  DiffPalette("chara", before.m_vecCharaPlt, a, after.m_vecCharaPlt, b, lines);
  DiffPalette("item", before.m_vecItemPlt, a, after.m_vecItemPlt, b, lines);
  for (const cCellChange& change : DiffStageCells(before, after)) DiffCell(change, a, b, lines);
  return lines;
}

}  // namespace velmora::inspect
