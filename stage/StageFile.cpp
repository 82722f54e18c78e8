#include "core/Log.h"
#include "objects/Palette.h"
#include "stage/Placements.h"
#include "stage/Stage.h"

namespace velmora {
namespace {

// With `checked`, each cell runs the checks of the normalising at once,
// while it is still in the cache, and is marked for the normalising to
// pass over. Its own Load has just run the first check against the same
// lists, and a second run of it finds nothing more to repair, so only the
// palette check is left.
template <class T>
void LoadLayer(std::vector<T>& layer, cDataFile& file, std::vector<uint8_t>* checked) {
  if (checked) checked->assign(layer.size(), 0);
  ReadPlacements(file, layer.size(), [&](size_t index) {
    T& cell = layer[index];
    cell.Load(file);
    if (!checked) return;
    CheckPaletteRefs(cell);
    (*checked)[index] = 1;
  });
}

// Writes the occupied cells inside the stage, row by row; `beforeWrite`
// gets each cell with its index just before it is written.
template <class T, class BeforeWrite>
void SaveLayer(const cStage& stage, std::vector<T>& layer, cDataFile& file, BeforeWrite beforeWrite) {
  for (T& cell : layer) {
    if (IsOccupied(cell)) cell.ApplyInherit();
  }
  int32_t count = 0;
  for (int y = 0; y < stage.m_nHeight; ++y) {
    for (int x = 0; x < stage.m_nWidth; ++x) count += IsOccupied(layer[static_cast<size_t>(stage.CellIndex(x, y))]);
  }
  file.WriteInt32(count);
  for (int y = 0; y < stage.m_nHeight; ++y) {
    for (int x = 0; x < stage.m_nWidth; ++x) {
      const int index = stage.CellIndex(x, y);
      T& cell = layer[static_cast<size_t>(index)];
      if (!IsOccupied(cell)) continue;
      cell.m_nPosX = static_cast<int16_t>(x);
      cell.m_nPosY = static_cast<int16_t>(y);
      beforeWrite(cell, index);
      file.WriteInt32(index);
      cell.Save(file);
    }
  }
}

template <class T>
void VisitLayer(cNestedVisitor& visitor, const char* name, const std::vector<T>& layer) {
  visitor.BeginArray(name);
  for (const T& cell : layer) {
    if (IsOccupied(cell)) visitor.Element(cell);
  }
  visitor.EndArray();
}

}  // namespace

void cStage::Register(uint32_t version) {
  ClearLists();
  Add4(VFIELD(m_nWidth));
  Add4(VFIELD(m_nPitch));
  Add4(VFIELD(m_nPitch_Shift));
  Add4(VFIELD(m_nHeight));
  Add4(VFIELD(m_bScrollMinX));
  Add4(VFIELD(m_bScrollMaxX));
  Add4(VFIELD(m_bScrollMinY));
  Add4(VFIELD(m_bScrollMaxY));
  Add4(VFIELD(m_iScrollMinX));
  Add4(VFIELD(m_iScrollMaxX));
  Add4(VFIELD(m_iScrollMinY));
  Add4(VFIELD(m_iScrollMaxY));
  Add4(VFIELD(m_iFrameRate));
  Add4(VFIELD(m_bTimeLimit));
  Add4(VFIELD(m_iTimeLimit));
  Add4(VFIELD(m_iWarnTime));
  Add4(VFIELD(m_iScrollTypeX));
  Add4(VFIELD(m_iScrollTypeY));
  Add4(VFIELD(m_iAutoSpeedX));
  Add4(VFIELD(m_iAutoSpeedY));
  Add8(VFIELD(m_dGravity));
  Add4(VFIELD(m_iHitLevel));
  Add4(VFIELD(m_iShotHitLevel));
  Add4(VFIELD(m_iBgm));
  if (version >= 166) Add4(VFIELD(m_bBgmLoop));
  if (version >= 199) Add4(VFIELD(m_bBgmKeep));
  Add4(VFIELD(m_bUseZ));
  Add4(VFIELD(m_bStockLoad));
  Add4(VFIELD(m_bStockSave));
  if (version >= 183) Add4(VFIELD(m_bStatusWindow));
  if (version >= 184) Add4(VFIELD(m_bSkipClearWait));
  Add4(VFIELD(m_bShowStageNo));
  if (version >= 225) Add4(VFIELD(m_bShowReady));
  Add4(VFIELD(m_bShowClear));
  Add4(VFIELD(m_bShowGameOver));
  if (version >= 200) {
    Add4(VFIELD(m_iHitPlWalkBlockW));
    Add4(VFIELD(m_iHitPlWalkBlockH));
    Add4(VFIELD(m_iHitPlFlyBlockW));
    Add4(VFIELD(m_iHitPlFlyBlockH));
  }
  Add4(VFIELD(m_iHitPlWalkCharaW));
  Add4(VFIELD(m_iHitPlWalkCharaH));
  if (version >= 155) {
    Add4(VFIELD(m_iHitPlFlyCharaW));
    Add4(VFIELD(m_iHitPlFlyCharaH));
  }
  Add4(VFIELD(m_iHitPlShotW));
  Add4(VFIELD(m_iHitPlShotH));
  Add4(VFIELD(m_iHitPlItemW));
  Add4(VFIELD(m_iHitPlItemH));
  if (version >= 200) {
    Add4(VFIELD(m_iPosPlWalkBlock));
    Add4(VFIELD(m_iPosPlFlyBlock));
  }
  if (version >= 155) {
    Add4(VFIELD(m_iPosPlWalkChara));
    Add4(VFIELD(m_iPosPlFlyChara));
  }
  if (version >= 200) Add4(VFIELD(m_iShowHitBlock));
  Add4(VFIELD(m_iShowHitChara));
  Add4(VFIELD(m_iShowHitShot));
  Add4(VFIELD(m_iShowHitItem));
  if (version >= 200) Add4(VFIELD(m_iColorHitBlock));
  Add4(VFIELD(m_iColorHitChara));
  Add4(VFIELD(m_iColorHitShot));
  Add4(VFIELD(m_iColorHitItem));
  if (version >= 200) {
    Add4(VFIELD(m_iHitEnWalkBlockW));
    Add4(VFIELD(m_iHitEnWalkBlockH));
    Add4(VFIELD(m_iHitEnFlyBlockW));
    Add4(VFIELD(m_iHitEnFlyBlockH));
  }
  Add4(VFIELD(m_iHitEnWalkCharaW));
  Add4(VFIELD(m_iHitEnWalkCharaH));
  if (version >= 155) {
    Add4(VFIELD(m_iHitEnFlyCharaW));
    Add4(VFIELD(m_iHitEnFlyCharaH));
  }
  Add4(VFIELD(m_iHitEnShotW));
  Add4(VFIELD(m_iHitEnShotH));
  if (version >= 200) {
    Add4(VFIELD(m_iPosEnWalkBlock));
    Add4(VFIELD(m_iPosEnFlyBlock));
  }
  if (version >= 155) {
    Add4(VFIELD(m_iPosEnWalkChara));
    Add4(VFIELD(m_iPosEnFlyChara));
  }
  Add4(VFIELD(m_iHitItemCharaW));
  Add4(VFIELD(m_iHitItemCharaH));
  Add4(VFIELD(m_iHitPlShotCharaW));
  Add4(VFIELD(m_iHitPlShotCharaH));
  Add4(VFIELD(m_iHitPlShotShotW));
  Add4(VFIELD(m_iHitPlShotShotH));
  Add4(VFIELD(m_iHitEnShotCharaW));
  Add4(VFIELD(m_iHitEnShotCharaH));
  Add4(VFIELD(m_iHitEnShotShotW));
  Add4(VFIELD(m_iHitEnShotShotH));
  Add4(VFIELD(m_iUndoCount));
  Add4(VFIELD(m_iDotWidth));
  Add4(VFIELD(m_iDotHeight));
  Add4(VFIELD(m_iHitStep));
  Add8(VFIELD(m_dHitStep));
  Add8(VFIELD(m_dHitStepSq));
  Add8(VFIELD(m_dSpeedLimit));
  Add8(VFIELD(m_dGravityStep));
  Add8(VFIELD(m_dSpeedStep));
  Add4(VFIELD(m_iHitStep8));
  Add4(VFIELD(m_bNoDamageOffscreen));
  Add4(VFIELD(m_iPlSameHitTime));
  Add4(VFIELD(m_iPlHitTime));
  Add4(VFIELD(m_iEnSameHitTime));
  Add4(VFIELD(m_iEnHitTime));
  AddString(VSTRING(m_strName));
}

void cStage::Load(cDataFile& file) {
  cStagePaletteScope scope(*this);
  cSaveData::Load(file);
  const int32_t ranks = ReadCount(file, 4);
  if (ranks >= 1) {
    m_vecRankItem.assign(static_cast<size_t>(ranks), 0);
    for (int32_t& rank : m_vecRankItem) file.ReadInt32(rank);
  }
  for (cAutoVanish& vanish : m_aAutoVanish) vanish.Load(file);
  ReadPaletteLists(Palette(), file);
  BlankFirstEntries(Palette());
  // A short palette is filled by the normalising, which changes what the
  // checks find; only with complete palettes can they run early.
  cCheckedCells checked;
  cCheckedCells* early = PalettesComplete() ? &checked : nullptr;
  if (!LoadLayers(file, early)) return;
  LoadVector(m_vecBack, file);
  LoadVector(m_vecStageVar, file);
  if (g_nFileVersion >= kFirstTrailerVersion) {
    int32_t trailer = 0;
    file.ReadInt32(trailer);
  }
  if (g_nFileVersion < 950) ApplyFixups();
  Normalize(early);
}

bool cStage::LoadLayers(cDataFile& file, cCheckedCells* checked) {
  m_vecBlockCell.clear();
  m_vecCharaCell.clear();
  m_vecItemCell.clear();
  if (!SetSize(m_nWidth, m_nHeight, 0, 0)) {
    // Keep a usable shape and read no further.
    file.MarkDamaged();
    SetSize(kStageViewWidth, kStageViewHeight, 0, 0);
    return false;
  }
  LoadPlacements(file, checked);
  return true;
}

void cStage::LoadPlacements(cDataFile& file, cCheckedCells* checked) {
  LoadLayer(m_vecBlockCell, file, checked ? &checked->block : nullptr);
  LoadLayer(m_vecCharaCell, file, checked ? &checked->chara : nullptr);
  LoadLayer(m_vecItemCell, file, checked ? &checked->item : nullptr);
}

void cStage::ApplyFixups() {
  if (g_nFileVersion < 155) {
    m_iHitPlFlyCharaW = m_iHitPlWalkCharaW;
    m_iHitPlFlyCharaH = m_iHitPlWalkCharaH;
    m_iHitEnFlyCharaW = m_iHitEnWalkCharaW;
    m_iHitEnFlyCharaH = m_iHitEnWalkCharaH;
    m_iPosPlWalkChara = m_iPosPlFlyChara = m_iPosEnWalkChara = m_iPosEnFlyChara = 0;
  }
  if (g_nFileVersion < 166) m_bBgmLoop = 1;
  if (g_nFileVersion < 181) {
    m_vecRankItem.resize(kRankItemCount, 0);
    m_vecRankItem[3] = m_vecRankItem[4] = 0;
  }
  if (g_nFileVersion < 183) m_bStatusWindow = 1;
  if (g_nFileVersion < 184) m_bSkipClearWait = 0;
  if (g_nFileVersion < 199) m_bBgmKeep = 0;
  if (g_nFileVersion < 200) {
    m_iHitPlWalkBlockW = 16, m_iHitPlWalkBlockH = 24;
    m_iHitPlFlyBlockW = 16, m_iHitPlFlyBlockH = 16;
    m_iPosPlWalkBlock = 1, m_iPosPlFlyBlock = 0;
    m_iShowHitBlock = 0;
    m_iColorHitBlock = 5;
    m_iHitEnWalkBlockW = 16, m_iHitEnWalkBlockH = 30;
    m_iHitEnFlyBlockW = 16, m_iHitEnFlyBlockH = 30;
    m_iPosEnWalkBlock = 1, m_iPosEnFlyBlock = 1;
  }
  if (g_nFileVersion < 208) m_iWheelDir = 0;
  if (g_nFileVersion < 225) m_bShowReady = 0;
  if (g_nFileVersion < 754) m_vecStageVar.resize(kStageVarCount);
  if (g_nFileVersion < 876) {
    for (cStageBack& back : m_vecBack) back.MoveAutoSpeed();
  }
}

void cStage::Save(cDataFile& file) {
  Normalize();
  cStagePaletteScope scope(*this);
  cSaveData::Save(file);
  file.WriteInt32(static_cast<int32_t>(m_vecRankItem.size()));
  for (int32_t rank : m_vecRankItem) file.WriteInt32(rank);
  for (cAutoVanish& vanish : m_aAutoVanish) vanish.Save(file);
  WritePaletteLists(Palette(), file);
  SavePlacements(file);
  SaveVector(m_vecBack, file);
  SaveVector(m_vecStageVar, file);
  file.WriteInt32(StageTrailer);
}

void cStage::SavePlacements(cDataFile& file) {
  SaveLayer(*this, m_vecBlockCell, file, [](cEdBlock&, int) {});
  // The game finds a character's held item by its place among the
  // occupied item cells; indices rise, so one pass counts them.
  int scanned = 0;
  int32_t itemsBelow = 0;
  SaveLayer(*this, m_vecCharaCell, file, [&](cEdChara& chara, int index) {
    for (; scanned < index; ++scanned) itemsBelow += IsOccupied(m_vecItemCell[static_cast<size_t>(scanned)]);
    const bool holds = chara.m_nControl == 1 && chara.m_bHoldItem && IsOccupied(m_vecItemCell[static_cast<size_t>(index)]);
    chara.m_nHeldItem = holds ? itemsBelow : -1;
  });
  SaveLayer(*this, m_vecItemCell, file, [](cEdItem&, int) {});
}

void cStage::VisitNested(cNestedVisitor& visitor) const {
  visitor.Numbers("m_vecRankItem", std::vector<int64_t>(m_vecRankItem.begin(), m_vecRankItem.end()));
  VisitVector(visitor, "m_aAutoVanish", m_aAutoVanish);
  VisitVector(visitor, "m_vecBlockPlt", m_vecBlockPlt);
  VisitVector(visitor, "m_vecCharaPlt", m_vecCharaPlt);
  VisitVector(visitor, "m_vecItemPlt", m_vecItemPlt);
  VisitLayer(visitor, "m_vecBlockCell", m_vecBlockCell);
  VisitLayer(visitor, "m_vecCharaCell", m_vecCharaCell);
  VisitLayer(visitor, "m_vecItemCell", m_vecItemCell);
  VisitVector(visitor, "m_vecBack", m_vecBack);
  VisitVector(visitor, "m_vecStageVar", m_vecStageVar);
}

}  // namespace velmora
