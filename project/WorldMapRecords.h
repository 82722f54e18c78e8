#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "core/SaveData.h"
#include "project/DatabaseList.h"

namespace velmora {

// A chip of the world map: what a cell shows and whether it can be walked.
class cEdWorldChip : public cSaveData {
 public:
  int32_t m_iReserved = 0;  // carried unchanged
  int32_t m_bBlocked = 0;
  int32_t m_iGraphic = 0;   // cell of bmp\WorldMapChip.bmp, five cells a row
  std::string m_strName;
  std::string m_strExtra;   // carried unchanged

  cEdWorldChip() { Reset(); }

 protected:
  void Register(uint32_t version) override;
};

// The chip list is numbered like a database list with a real index 0.
inline constexpr cListRule kWorldChipRule = {false, 1, 999};

// One page of a world map event: what it is and when it appears.
class cEdWorldPage : public cSaveData {
 public:
  enum eType { TypeWorld, TypeRoad, TypeWall };

  int32_t m_iType = TypeWorld;
  int32_t m_iGraphic = 0;
  int32_t m_iWorldNo = 0;  // 0: no number, cleared from the start
  int32_t m_bPassable = 0;
  int32_t m_bReplayable = 0;
  int32_t m_iGameClear = 0;
  int32_t m_iCondWorld = 0;
  int32_t m_iCondVar = 0;
  int32_t m_iCondValue = 0;
  int32_t m_iCondOp = 0;
  int32_t m_iCondScore = 0;
  int32_t m_bVariation = 0;
  int32_t m_iVarVar = 1;
  int32_t m_iVarValue = 0;
  std::string m_strWorldName;
  std::string m_strStartStage;

  cEdWorldPage() { SetUp(); }
  void SetUp();
  void Load(cDataFile& file) override;

 protected:
  void Register(uint32_t version) override;
};

// An event placed on the map, or a template of the event palette.
class cEdWorldEvent : public cSaveData {
 public:
  static constexpr int kMaxPages = 99;

  int32_t m_iX = 0;
  int32_t m_iY = 0;
  std::string m_strName;
  std::vector<cEdWorldPage> m_vecPages;

  cEdWorldEvent() { SetUp(); }
  void SetUp();
  void Load(cDataFile& file) override;
  void Save(cDataFile& file) override;
  void VisitNested(cNestedVisitor& visitor) const override;

 protected:
  void Register(uint32_t version) override;
};

}  // namespace velmora
