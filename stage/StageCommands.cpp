#include "stage/StageCommands.h"

#include <array>

#include "core/Prompt.h"
#include "core/SystemText.h"
#include "stage/StageHistory.h"
#include "stage/StageLayers.h"

namespace velmora {
namespace {

struct cClearCommand {
  uint32_t mask;
  const char* question;
};

constexpr std::array<cClearCommand, 4> kClearCommands = {{
    {kLayerAll, "全ての配置データ（ブロック・キャラ・アイテム）をクリアしますか？"},
    {kLayerBlock, "全てのブロックをクリアしますか？"},
    {kLayerChara, "全てのキャラをクリアしますか？"},
    {kLayerItem, "全てのアイテムをクリアしますか？"},
}};

}  // namespace

bool ClearLayersCommand(eClearLayers which) {
  const cClearCommand& command = kClearCommands.at(static_cast<size_t>(which));
  if (Prompt().Ask(nullptr, SysText("データクリアの確認"), SysText(command.question), eButtons::YesNo, eIcon::Question) != eAnswer::Yes) {
    return false;
  }
  RecordStep(command.mask);
  NoteLayerWrite(command.mask);
  for (int layer = 0; layer < kLayerCount; ++layer) {
    if (!(command.mask & LayerBit(layer))) continue;
    WithLayer(layer, [](auto& cells, const auto&) { cells.assign(cells.size(), {}); });
  }
  StageEdit().m_bStageChanged = 1;
  return true;
}

std::bitset<kGroupCount> UsedGroupNumbers() {
  std::bitset<kGroupCount> used;
  for (const cEdChara& cell : EditStage().m_vecCharaCell) {
    if (cell.m_bGroup && cell.m_nGroupNo >= 0 && cell.m_nGroupNo < kGroupCount) used.set(static_cast<size_t>(cell.m_nGroupNo));
  }
  return used;
}

}  // namespace velmora
