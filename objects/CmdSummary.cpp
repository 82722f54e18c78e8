#include "objects/CmdSummary.h"

#include <array>

#include "core/SystemText.h"
#include "objects/CmdSummaryParts.h"
#include "objects/CmdTable.h"

namespace velmora {
namespace {

constexpr int kCmdKindRows = kCmdLoop + 1;
constexpr int kItemKindRows = kCmdKindRows - kItemKindOffset;

void RenderFlowChange(const cEdCmd& cmd, cCmdLine& line) { line.head = HeadTime(cmd, 0); }

using cRendererTable = std::array<CmdRenderer, kCmdKindRows>;

const cRendererTable& CharaRenderers() {
  static const cRendererTable table = [] {
    cRendererTable rows{};
    for (auto family : {ActionRenderRows(), StatusRenderRows(), GameRenderRows()}) {
      for (const cCmdRenderRow& row : family) rows[static_cast<size_t>(row.kind)] = row.render;
    }
    return rows;
  }();
  return table;
}

// An item's kinds from 2 on are the game's commands from ステージクリア on;
// its kind 1 is its own.
const std::array<CmdRenderer, kItemKindRows>& ItemRenderers() {
  static const std::array<CmdRenderer, kItemKindRows> table = [] {
    std::array<CmdRenderer, kItemKindRows> rows{};
    rows[kItemCmdFlowChange] = &RenderFlowChange;
    for (int kind = kItemCmdFlowChange + 1; kind < kItemKindRows; ++kind) {
      rows[static_cast<size_t>(kind)] = CharaRenderers()[static_cast<size_t>(kind + kItemKindOffset)];
    }
    return rows;
  }();
  return table;
}

CmdRenderer RendererOf(const cEdCmd& cmd) {
  const size_t kind = cmd.m_nKind;
  if (cmd.m_bItemCmd) return kind < ItemRenderers().size() ? ItemRenderers()[kind] : nullptr;
  return kind < CharaRenderers().size() ? CharaRenderers()[kind] : nullptr;
}

}  // namespace

std::string CmdSummaryText(const cEdCmd& cmd) {
  const CmdRenderer render = RendererOf(cmd);
  const cCmdInfo* info = FindCmdInfo(cmd.m_bItemCmd != 0, cmd.m_nKind);
  if (!render || !info) return {};
  cCmdLine line;
  render(cmd, line);
  return line.head + SysText(" ◆ ") + SysText(info->label) + SysText(" ◆") + line.details;
}

double EstimateMoveTime(int speed, int dist, int unit) {
  if (speed == 0) return 0.0;
  const double dots = unit == 1 ? dist : dist * 16.0;
  return dots / (speed / 10.0) / 6.0;
}

double EstimateArcTime(int end, int start, int speed) {
  if (speed == 0) return 0.0;
  return static_cast<double>(end - start) / speed * 10.0 / 6.0;
}

}  // namespace velmora
