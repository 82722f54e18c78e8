#include "project/whereused/FileUses.h"

#include <algorithm>

#include "core/SystemText.h"
#include "objects/GValInfo.h"
#include "objects/Palette.h"
#include "project/Database.h"
#include "project/SystemLabels.h"
#include "project/SystemRecord.h"
#include "project/WorldMap.h"
#include "project/whereused/PathKey.h"
#include "project/whereused/RecordUses.h"
#include "stage/SparseStage.h"

namespace velmora {
namespace {

template <class tEntry>
void CollectPaletteList(const std::vector<tEntry>* list, ePaletteList kind, std::vector<cUse>& uses) {
  if (!list) return;
  cUse place;
  place.area = eUseArea::Palette;
  place.list = kind;
  // Element 0 is the blank entry, never shown.
  for (size_t i = 1; i < list->size(); ++i) {
    place.entry = static_cast<int>(i);
    place.name = (*list)[i].m_strName;
    CollectEntryUses((*list)[i], place, uses);
  }
}

void CollectPalette(const cPaletteLists& lists, std::vector<cUse>& uses) {
  CollectPaletteList(lists.blocks, ePaletteList::Block, uses);
  CollectPaletteList(lists.charas, ePaletteList::Chara, uses);
  CollectPaletteList(lists.items, ePaletteList::Item, uses);
}

template <class tEntry>
void CollectCell(int x, int y, const tEntry& cell, ePaletteList kind, std::vector<cUse>& uses) {
  cUse place;
  place.area = eUseArea::Cell;
  place.list = kind;
  place.x = x;
  place.y = y;
  place.name = cell.m_strName;
  CollectEntryUses(cell, place, uses);
}

template <class tEntry>
void CollectLayer(const cStage& stage, const std::vector<tEntry>& layer, ePaletteList kind, std::vector<cUse>& uses) {
  for (int y = 0; y < stage.m_nHeight; ++y) {
    for (int x = 0; x < stage.m_nWidth; ++x) {
      const size_t index = static_cast<size_t>(stage.CellIndex(x, y));
      if (index < layer.size() && IsOccupied(layer[index])) CollectCell(x, y, layer[index], kind, uses);
    }
  }
}

template <class tEntry>
void CollectPlaced(const cSparseStage& stage, const std::vector<cPlacement<tEntry>>& placed, ePaletteList kind,
                   std::vector<cUse>& uses) {
  for (const cPlacement<tEntry>& placement : placed) {
    const cCellPos pos = stage.PosOf(placement.index);
    CollectCell(pos.x, pos.y, placement.cell, kind, uses);
  }
}

void AddFieldUse(eUseKind kind, int number, cUse place, const char* label, std::vector<cUse>& uses) {
  place.target = {kind, number};
  place.what = label;
  uses.push_back(std::move(place));
}

void CollectWorldPage(const cEdWorldPage& page, const cUse& place, std::vector<cUse>& uses) {
  if (page.m_iCondVar >= 1) AddFieldUse(eUseKind::VarCommon, page.m_iCondVar, place, SysText("出現条件"), uses);
  if (page.m_bVariation && page.m_iVarVar >= 1) {
    AddFieldUse(eUseKind::VarCommon, page.m_iVarVar, place, SysText("バリエーション"), uses);
  }
}

void CollectCells(const cStage& stage, std::vector<cUse>& uses) {
  CollectLayer(stage, stage.m_vecBlockCell, ePaletteList::Block, uses);
  CollectLayer(stage, stage.m_vecCharaCell, ePaletteList::Chara, uses);
  CollectLayer(stage, stage.m_vecItemCell, ePaletteList::Item, uses);
}

void CollectCells(const cSparseStage& stage, std::vector<cUse>& uses) {
  CollectPlaced(stage, stage.m_vecBlockPlaced, ePaletteList::Block, uses);
  CollectPlaced(stage, stage.m_vecCharaPlaced, ePaletteList::Chara, uses);
  CollectPlaced(stage, stage.m_vecItemPlaced, ePaletteList::Item, uses);
}

// A background layer shows a picture file; it is a use of every picture
// row that names the same file.
void CollectBackgrounds(const std::vector<cStageBack>& backs, std::vector<cUse>& uses) {
  std::vector<std::string> keys(backs.size());
  for (size_t i = 0; i < backs.size(); ++i) {
    if (!backs[i].m_bUseColor && !backs[i].m_strPath.empty()) keys[i] = PathKey(backs[i].m_strPath);
  }
  if (std::all_of(keys.begin(), keys.end(), [](const std::string& key) { return key.empty(); })) return;
  const std::vector<cEdPicture>& pictures = Database().m_Picture.m_vecEntries;
  cUse place;
  place.area = eUseArea::Background;
  // Row 0 is なし.
  for (size_t row = 1; row < pictures.size(); ++row) {
    if (pictures[row].m_strPath.empty()) continue;
    const std::string picture = PathKey(pictures[row].m_strPath);
    for (size_t i = 0; i < keys.size(); ++i) {
      if (keys[i] != picture) continue;
      place.entry = static_cast<int>(i) + 1;
      AddFieldUse(eUseKind::Picture, static_cast<int>(row), place, backs[i].m_strPath.c_str(), uses);
    }
  }
}

// The settings, the palette and the cells, with the stage's palette and
// variable names installed for the summaries.
template <class tStage>
void CollectStage(tStage& stage, std::vector<cUse>& uses) {
  cStagePaletteScope palette(stage);
  cStageVarScope names(stage.m_vecStageVar);
  cUse settings;
  settings.area = eUseArea::StageSettings;
  if (stage.m_iBgm > 0) AddFieldUse(eUseKind::Bgm, stage.m_iBgm, settings, "BGM", uses);
  CollectBackgrounds(stage.m_vecBack, uses);
  CollectPalette(stage.Palette(), uses);
  CollectCells(stage, uses);
}

}  // namespace

std::vector<cUse> FindInStage(cStage& stage, const cUseTarget& target) {
  std::vector<cUse> uses;
  CollectStage(stage, uses);
  std::erase_if(uses, [&](const cUse& use) { return use.target != target; });
  return uses;
}

bool CollectCommonPaletteUses(const std::string& storedPath, std::vector<cUse>& uses) {
  cPalette palette;
  if (!palette.LoadWholeFile(storedPath)) return false;
  CollectPalette(palette.Lists(), uses);
  return true;
}

bool CollectStageUses(const std::string& storedPath, std::vector<cUse>& uses) {
  // Only the occupied cells: whole layers of a large stage cost far more
  // to make and free than the few cells that hold anything.
  cSparseStage stage;
  if (!stage.LoadWholeFile(storedPath)) return false;
  CollectStage(stage, uses);
  return true;
}

bool CollectWorldMapUses(const std::string& storedPath, std::vector<cUse>& uses) {
  cEdWorldMap map;
  if (!map.LoadWholeFile(storedPath)) return false;
  cUse place;
  place.area = eUseArea::WorldMap;
  for (size_t e = 0; e < map.m_vecEvents.size(); ++e) {
    place.entry = static_cast<int>(e) + 1;
    place.name = map.m_vecEvents[e].m_strName;
    for (size_t p = 0; p < map.m_vecEvents[e].m_vecPages.size(); ++p) {
      place.page = static_cast<int>(p) + 1;
      CollectWorldPage(map.m_vecEvents[e].m_vecPages[p], place, uses);
    }
  }
  return true;
}

bool CollectSystemUses(const std::string& storedPath, std::vector<cUse>& uses) {
  cEdSystem system;
  if (!system.LoadWholeFile(storedPath)) return false;
  cUse place;
  place.area = eUseArea::System;
  for (size_t i = 0; i < system.m_aiBgm.size(); ++i) {
    const int screen = static_cast<int>(i);
    if (system.m_aiBgm[i] > 0) {
      AddFieldUse(eUseKind::Bgm, system.m_aiBgm[i], place, (std::string("BGM ") + SystemBgmTable.Label(screen)).c_str(), uses);
    }
  }
  return true;
}

}  // namespace velmora
