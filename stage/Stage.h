#pragma once
#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

#include "core/SaveData.h"
#include "objects/Block.h"
#include "objects/Chara.h"
#include "objects/Item.h"
#include "objects/PaletteSources.h"
#include "objects/StageVar.h"
#include "stage/StageParts.h"

namespace velmora {

// The last four bytes of every stage file since version 173: a file that
// lacks them was cut off while being written.
inline constexpr int32_t StageTrailer = 123456789;
inline constexpr uint32_t kFirstTrailerVersion = 173;

inline constexpr int kStageViewWidth = 20;   // bl on screen
inline constexpr int kStageViewHeight = 15;
inline constexpr int kMaxStageSize = 512;    // bl, either way
inline constexpr int kCellDots = 32;
inline constexpr int kStageVarCount = 1000;
inline constexpr int kRankItemCount = 5;

enum eAutoVanish { kVanishEnemy, kVanishEnemyBlock, kVanishItem, kVanishPlayerShot, kVanishEnemyShot, kVanishCount };

struct cCellPos {
  int x = -1;
  int y = -1;
};

// One stage: its settings, its own palette and three layers of placed
// objects. A placed object is a whole copy of a palette entry, so it can
// be changed by itself; a cell is empty when its graphic number is 0.
class cStage : public cSaveData {
 public:
  int32_t m_nWidth = kStageViewWidth;
  int32_t m_nPitch = 32;
  int32_t m_nPitch_Shift = 5;
  int32_t m_nHeight = kStageViewHeight;
  int32_t m_bScrollMinX = 0, m_bScrollMaxX = 0, m_bScrollMinY = 0, m_bScrollMaxY = 0;
  int32_t m_iScrollMinX = 0, m_iScrollMaxX = 0, m_iScrollMinY = 0, m_iScrollMaxY = 0;
  int32_t m_iFrameRate = 60;
  int32_t m_bTimeLimit = 0;
  int32_t m_iTimeLimit = 200;
  int32_t m_iWarnTime = 20;
  int32_t m_iScrollTypeX = 0, m_iScrollTypeY = 0;
  int32_t m_iAutoSpeedX = 0, m_iAutoSpeedY = 0;
  double m_dGravity = 0.4;
  int32_t m_iHitLevel = 10;
  int32_t m_iShotHitLevel = 0;
  int32_t m_iBgm = 0;
  int32_t m_bBgmLoop = 0;
  int32_t m_bBgmKeep = 0;
  int32_t m_bUseZ = 1;
  int32_t m_bStockLoad = 0;
  int32_t m_bStockSave = 0;
  int32_t m_bStatusWindow = 1;
  int32_t m_bSkipClearWait = 0;
  int32_t m_bShowStageNo = 0;
  int32_t m_bShowReady = 1;
  int32_t m_bShowClear = 1;
  int32_t m_bShowGameOver = 1;
  // Hit boxes in dots and where they sit (0 centre, 1 bottom).
  int32_t m_iHitPlWalkBlockW = 16, m_iHitPlWalkBlockH = 24;
  int32_t m_iHitPlFlyBlockW = 16, m_iHitPlFlyBlockH = 16;
  int32_t m_iHitPlWalkCharaW = 16, m_iHitPlWalkCharaH = 24;
  int32_t m_iHitPlFlyCharaW = 16, m_iHitPlFlyCharaH = 16;
  int32_t m_iHitPlShotW = 12, m_iHitPlShotH = 8;
  int32_t m_iHitPlItemW = 16, m_iHitPlItemH = 16;
  int32_t m_iPosPlWalkBlock = 1, m_iPosPlFlyBlock = 0;
  int32_t m_iPosPlWalkChara = 1, m_iPosPlFlyChara = 0;
  int32_t m_iShowHitBlock = 0, m_iShowHitChara = 0, m_iShowHitShot = 0, m_iShowHitItem = 0;
  int32_t m_iColorHitBlock = 0, m_iColorHitChara = 0, m_iColorHitShot = 0, m_iColorHitItem = 0;
  int32_t m_iHitEnWalkBlockW = 16, m_iHitEnWalkBlockH = 24;
  int32_t m_iHitEnFlyBlockW = 16, m_iHitEnFlyBlockH = 16;
  int32_t m_iHitEnWalkCharaW = 12, m_iHitEnWalkCharaH = 24;
  int32_t m_iHitEnFlyCharaW = 12, m_iHitEnFlyCharaH = 16;
  int32_t m_iHitEnShotW = 30, m_iHitEnShotH = 30;
  int32_t m_iPosEnWalkBlock = 1, m_iPosEnFlyBlock = 0;
  int32_t m_iPosEnWalkChara = 1, m_iPosEnFlyChara = 0;
  int32_t m_iHitItemCharaW = 28, m_iHitItemCharaH = 28;
  int32_t m_iHitPlShotCharaW = 16, m_iHitPlShotCharaH = 16;
  int32_t m_iHitPlShotShotW = 16, m_iHitPlShotShotH = 16;
  int32_t m_iHitEnShotCharaW = 16, m_iHitEnShotCharaH = 16;
  int32_t m_iHitEnShotShotW = 16, m_iHitEnShotShotH = 16;
  int32_t m_iUndoCount = 1;
  int32_t m_iDotWidth = 640, m_iDotHeight = 480;
  // Derived by ApplyHitLevel for the game program; never read back.
  int32_t m_iHitStep = 10;
  double m_dHitStep = 10, m_dHitStepSq = 100, m_dSpeedLimit = 60, m_dGravityStep = 0.004, m_dSpeedStep = 6;
  int32_t m_iHitStep8 = 80;
  int32_t m_bNoDamageOffscreen = 1;
  int32_t m_iPlSameHitTime = 30, m_iPlHitTime = 0;
  int32_t m_iEnSameHitTime = 30, m_iEnHitTime = 0;
  std::string m_strName;  // up to 30 bytes

  std::vector<int32_t> m_vecRankItem;
  std::array<cAutoVanish, kVanishCount> m_aAutoVanish;
  std::vector<cEdBlock> m_vecBlockPlt;
  std::vector<cEdChara> m_vecCharaPlt;
  std::vector<cEdItem> m_vecItemPlt;
  std::vector<cEdBlock> m_vecBlockCell;
  std::vector<cEdChara> m_vecCharaCell;
  std::vector<cEdItem> m_vecItemCell;
  std::vector<cStageBack> m_vecBack;
  std::vector<cStageVar> m_vecStageVar;
  // The stage window's wheel direction (0 horizontal, 1 vertical): in no
  // file, so it lasts as long as the process.
  int32_t m_iWheelDir = 0;

  void InitDefault();
  // Trades contents with `other` without copying a cell, so a stage read
  // beside the edit stage can take its place; the wheel direction belongs
  // to the process and stays.
  void Exchange(cStage& other);
  // The same for the three palette lists alone.
  void ExchangePalette(cStage& other);
  // dirX 1 keeps the right columns, dirY 1 the bottom rows. 0 for a size of 0.
  int SetSize(int width, int height, int dirX, int dirY);
  int CellIndex(int x, int y) const { return (y << m_nPitch_Shift) + x; }
  void Normalize();
  void ApplyHitLevel(int level);

  cPaletteLists Palette() { return {&m_vecBlockPlt, &m_vecCharaPlt, &m_vecItemPlt}; }
  cPaletteLists Cells() { return {&m_vecBlockCell, &m_vecCharaCell, &m_vecItemCell}; }

  // The one player character that a stage may hold.
  cCellPos FindPlayer() const;
  bool HasPlayer() const { return FindPlayer().x != -1; }
  void RemoveSurplusPlayers();
  // The same among `cells` alone, in rising order: all the players that
  // the layer can hold when the rest of it is known to be empty.
  void KeepLastPlayer(std::span<const int32_t> cells);

  void Load(cDataFile& file) override;
  void Save(cDataFile& file) override;
  void VisitNested(cNestedVisitor& visitor) const override;

 protected:
  // Per layer, the cells whose checks ran as they were read (1), so that
  // the normalising after a load need not visit them again.
  struct cCheckedCells {
    std::vector<uint8_t> block, chara, item;
  };

  void Register(uint32_t version) override;
  // Reads the placements that follow the palettes into layers of the size
  // just read, checking each cell at once when `checked` is given; false,
  // with the file marked damaged, for a size no stage can have. A read
  // that needs only the occupied cells keeps them its own way.
  virtual bool LoadLayers(cDataFile& file, cCheckedCells* checked);

 private:
  void Normalize(const cCheckedCells* checked);
  void ClampScrollLimits();
  void FillShortPalettes();
  bool PalettesComplete() const;
  void CheckAllRefs(const cCheckedCells* checked);
  void LoadPlacements(cDataFile& file, cCheckedCells* checked);
  void SavePlacements(cDataFile& file);
  void ApplyFixups();
};

// The second check of an entry: its references into the palettes, once
// all the palettes are in place.
template <class T>
void CheckPaletteRefs(T& entry) {
  if constexpr (std::is_same_v<T, cEdBlock>) {
    entry.CheckItemRef();
  } else {
    entry.CheckCmdRefs();
  }
}

// Both checks: the entry's own references, then those into the palettes.
template <class T>
void CheckEntryRefs(T& entry) {
  entry.CheckRefs();
  CheckPaletteRefs(entry);
}

// An erased cell is a blank entry with no graphic.
template <class T>
void EraseCell(T& cell) {
  cell.ResetEntry();
  cell.m_nGraphicNo = 0;
}

template <class T>
bool IsOccupied(const T& cell) {
  return cell.m_nGraphicNo != 0;
}

inline bool IsPlayer(const cEdChara& cell) { return IsOccupied(cell) && cell.m_nControl == 0; }

// Smallest power of two not below `width`, as its shift.
int CalcPitchShift(int width);

// The edit stage: the one stage the editor works on. Its palette is the
// one that entries with the stage as inherit source read from.
cStage& EditStage();

// The stage's palette stands as the installed stage palette while the
// guard lives, so inheritance inside it finds its own lists.
class cStagePaletteScope {
 public:
  explicit cStagePaletteScope(cStage& stage);
  ~cStagePaletteScope();
  cStagePaletteScope(const cStagePaletteScope&) = delete;
  cStagePaletteScope& operator=(const cStagePaletteScope&) = delete;

 private:
  cPaletteLists m_previous;
};

}  // namespace velmora
