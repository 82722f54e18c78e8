#include "stage/Stage.h"

#include <algorithm>
#include <utility>

#include "core/Log.h"
#include "core/PrjOption.h"
#include "core/SystemText.h"
#include "objects/Inherit.h"
#include "objects/RefSizes.h"
#include "stage/StageHistory.h"

namespace velmora {
namespace {

template <class T>
void FillToTwo(std::vector<T>& list, const T& defaultEntry, eEntryKind kind) {
  if (list.size() >= 2) return;
  list.resize(2);
  list[1] = defaultEntry;
  const PrjOption& option = ProjectOption();
  SetInherit(list[1], option.m_anDefSrc[kMomentStage][kind], 1, option.m_vDefFlags[kMomentStage][kind]);
}

// `checked`, when given, marks the entries to leave out.
template <class T>
void CheckEntries(std::vector<T>& list, const std::vector<uint8_t>* checked = nullptr) {
  for (size_t i = 0; i < list.size(); ++i) {
    if (!checked || !VecAt(*checked, i)) CheckEntryRefs(list[i]);
  }
}

// Copies of one blank record: cheaper by far than building each anew.
template <class T>
void ResetLayer(std::vector<T>& layer, size_t cells) {
  layer.clear();
  layer.shrink_to_fit();
  layer.assign(cells, T());
}

// Where old cells land after a change of size: an enlarged stage keeping
// its far side moves old cells up by the growth, a reduced one starts
// reading at the loss.
struct cSizeShift {
  int destination = 0;
  int source = 0;
};

cSizeShift ShiftFor(int keepFarSide, int oldSize, int newSize) {
  if (!keepFarSide) return {};
  if (newSize >= oldSize) return {newSize - oldSize, 0};
  return {0, oldSize - newSize};
}

}  // namespace

int CalcPitchShift(int width) {
  int shift = 0;
  for (unsigned v = static_cast<unsigned>(std::max(width, 1) - 1); v != 0; v >>= 1) ++shift;
  return shift;
}

void cStage::InitDefault() {
  const int32_t wheelDir = m_iWheelDir;
  CopyFrom(cStage());
  m_iWheelDir = wheelDir;
  m_vecBlockPlt.assign(1, cEdBlock());
  m_vecCharaPlt.assign(1, cEdChara());
  m_vecItemPlt.assign(1, cEdItem());
  m_vecBlockCell.clear();
  m_vecCharaCell.clear();
  m_vecItemCell.clear();
  for (cAutoVanish& vanish : m_aAutoVanish) vanish.SetAll(0, 0);
  m_aAutoVanish[kVanishPlayerShot].SetAll(1, 0);
  m_aAutoVanish[kVanishEnemyShot].SetAll(1, 10);
  m_vecBack.assign(1, cStageBack());
  m_vecBack[0].m_bUseColor = 1;
  m_vecRankItem.assign(kRankItemCount, 1);
  SetSize(kStageViewWidth, kStageViewHeight, 0, 0);
  m_vecStageVar.assign(kStageVarCount, cStageVar());
}

void cStage::Exchange(cStage& other) {
  const int32_t wheelDir = m_iWheelDir;
  std::swap(*this, other);
  other.m_iWheelDir = m_iWheelDir;
  m_iWheelDir = wheelDir;
}

void cStage::ExchangePalette(cStage& other) {
  m_vecBlockPlt.swap(other.m_vecBlockPlt);
  m_vecCharaPlt.swap(other.m_vecCharaPlt);
  m_vecItemPlt.swap(other.m_vecItemPlt);
}

int cStage::SetSize(int width, int height, int dirX, int dirY) {
  if (width == 0 || height == 0) {
    DebugBox("%s", SysText("SetSize()で 0 を指定しました！"));
    return 0;
  }
  if (width < 0 || height < 0 || width > kMaxStageSize || height > kMaxStageSize) {
    ReportFormat("SetSize(%d, %d) refused", width, height);
    return 0;
  }
  if (!m_vecCharaCell.empty()) {
    const cCellPos player = FindPlayer();
    if (player.x != -1 && (player.x >= width || player.y >= height)) {
      m_vecCharaCell[0] = m_vecCharaCell[static_cast<size_t>(CellIndex(player.x, player.y))];
    }
  }
  const bool keep = !m_vecBlockCell.empty();
  const int oldWidth = m_nWidth, oldHeight = m_nHeight, oldShift = m_nPitch_Shift;
  std::vector<cEdBlock> oldBlocks = std::move(m_vecBlockCell);
  std::vector<cEdChara> oldCharas = std::move(m_vecCharaCell);
  std::vector<cEdItem> oldItems = std::move(m_vecItemCell);

  m_nWidth = width;
  m_nHeight = height;
  m_iDotWidth = width * kCellDots;
  m_iDotHeight = height * kCellDots;
  m_nPitch_Shift = CalcPitchShift(width);
  m_nPitch = 1 << m_nPitch_Shift;
  const size_t cells = static_cast<size_t>(m_nPitch) * static_cast<size_t>(height);
  ResetLayer(m_vecBlockCell, cells);
  ResetLayer(m_vecCharaCell, cells);
  ResetLayer(m_vecItemCell, cells);

  if (keep) {
    const cSizeShift rows = ShiftFor(dirY, oldHeight, height);
    const cSizeShift columns = ShiftFor(dirX, oldWidth, width);
    for (int r = 0; r < std::min(oldHeight, height); ++r) {
      for (int c = 0; c < std::min(oldWidth, width); ++c) {
        const size_t from = (static_cast<size_t>(r + rows.source) << oldShift) + static_cast<size_t>(c + columns.source);
        const size_t to = static_cast<size_t>(CellIndex(c + columns.destination, r + rows.destination));
        if (from >= oldBlocks.size()) continue;
        m_vecBlockCell[to] = std::move(oldBlocks[from]);
        m_vecCharaCell[to] = std::move(oldCharas[from]);
        m_vecItemCell[to] = std::move(oldItems[from]);
      }
    }
  }
  ClampScrollLimits();
  return 1;
}

void cStage::ClampScrollLimits() {
  m_iScrollMinX = std::min(m_iScrollMinX, m_nWidth - kStageViewWidth);
  m_iScrollMaxX = std::min(m_iScrollMaxX, m_nWidth - 1);
  m_iScrollMinY = std::min(m_iScrollMinY, m_nHeight - kStageViewHeight);
  m_iScrollMaxY = std::min(m_iScrollMaxY, m_nHeight - 1);
}

void cStage::ApplyHitLevel(int level) {
  m_iHitLevel = level;
  const int step = (level >= 11 && level < 20) ? level - 10 : level;
  m_iHitStep = step;
  m_dHitStep = step;
  m_dHitStepSq = static_cast<double>(step) * step;
  m_dSpeedLimit = (level < 11 || level > 19) ? step * 6.0 : 60.0;
  m_dSpeedStep = m_dSpeedLimit / m_dHitStep;
  m_dGravityStep = m_dGravity / m_dHitStepSq;
  m_iHitStep8 = m_iHitStep * 8;
}

void cStage::Normalize() { Normalize(nullptr); }

void cStage::Normalize(const cCheckedCells* checked) {
  cStagePaletteScope scope(*this);
  ClampScrollLimits();
  ApplyHitLevel(m_iHitLevel);
  if (m_iBgm >= RefSizes().DbListSize(eDbList::Bgm)) m_iBgm = 0;
  FillShortPalettes();
  CheckAllRefs(checked);
}

void cStage::FillShortPalettes() {
  const PrjOption& option = ProjectOption();
  FillToTwo(m_vecBlockPlt, option.m_DefBlock, kKindBlock);
  FillToTwo(m_vecCharaPlt, option.m_DefChara, kKindChara);
  FillToTwo(m_vecItemPlt, option.m_DefItem, kKindItem);
}

bool cStage::PalettesComplete() const {
  return m_vecBlockPlt.size() >= 2 && m_vecCharaPlt.size() >= 2 && m_vecItemPlt.size() >= 2;
}

void cStage::CheckAllRefs(const cCheckedCells* checked) {
  CheckEntries(m_vecBlockPlt);
  CheckEntries(m_vecCharaPlt);
  CheckEntries(m_vecItemPlt);
  CheckEntries(m_vecBlockCell, checked ? &checked->block : nullptr);
  CheckEntries(m_vecCharaCell, checked ? &checked->chara : nullptr);
  CheckEntries(m_vecItemCell, checked ? &checked->item : nullptr);
}

cCellPos cStage::FindPlayer() const {
  for (int y = 0; y < m_nHeight; ++y) {
    for (int x = 0; x < m_nWidth; ++x) {
      const size_t index = static_cast<size_t>(CellIndex(x, y));
      if (index < m_vecCharaCell.size() && IsPlayer(m_vecCharaCell[index])) return {x, y};
    }
  }
  return {};
}

void cStage::RemoveSurplusPlayers() {
  std::vector<int32_t> players;
  for (int y = 0; y < m_nHeight; ++y) {
    for (int x = 0; x < m_nWidth; ++x) {
      const size_t index = static_cast<size_t>(CellIndex(x, y));
      if (index < m_vecCharaCell.size() && IsPlayer(m_vecCharaCell[index])) players.push_back(static_cast<int32_t>(index));
    }
  }
  KeepLastPlayer(players);
}

void cStage::KeepLastPlayer(std::span<const int32_t> cells) {
  const int32_t* last = nullptr;
  for (const int32_t& index : cells) {
    cEdChara& cell = VecAt(m_vecCharaCell, index);
    if (!IsPlayer(cell)) continue;
    if (last) {
      cEdChara& surplus = VecAt(m_vecCharaCell, *last);
      NoteCellWrite(surplus);
      EraseCell(surplus);
    }
    last = &index;
  }
}

cStage& EditStage() {
  static cStage* stage = [] {
    static cStage edit;
    InstallPaletteLists(ePalette::Stage, edit.Palette());
    return &edit;
  }();
  return *stage;
}

cStagePaletteScope::cStagePaletteScope(cStage& stage) : m_previous(InstalledPaletteLists(ePalette::Stage)) {
  InstallPaletteLists(ePalette::Stage, stage.Palette());
}

cStagePaletteScope::~cStagePaletteScope() { InstallPaletteLists(ePalette::Stage, m_previous); }

}  // namespace velmora
