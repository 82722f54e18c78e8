#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "core/SaveData.h"
#include "project/WorldMapRecords.h"

namespace velmora {

// The project's world map: a grid of chips with events on its cells, the
// chip list and the event palette. The grid is stored row by row with the
// row stride m_nPitch, the smallest power of two not below the width.
class cEdWorldMap : public cSaveData {
 public:
  static constexpr int kMaxWidth = 200;
  static constexpr int kMaxHeight = 150;
  static constexpr int kMaxTemplates = 99;
  static constexpr int kMaxWorldNo = 999;

  int32_t m_nWidth = 20;
  int32_t m_nHeight = 15;
  int32_t m_nPitch = 32;
  int32_t m_nPitch_Shift = 5;
  int32_t m_iStartX = 9;
  int32_t m_iStartY = 7;
  int32_t m_iBackColor = 16;
  int32_t m_bUseBackImage = 0;
  std::string m_strCaption;  // carried unchanged
  std::string m_strBackPath;
  std::vector<cEdWorldChip> m_vecChips;
  std::vector<int32_t> m_vecCells;
  std::vector<cEdWorldEvent> m_vecEvents;
  std::vector<cEdWorldEvent> m_vecTemplates;

  cEdWorldMap() { SetUp(); }
  void SetUp();
  void Load(cDataFile& file) override;
  void Save(cDataFile& file) override;
  void VisitNested(cNestedVisitor& visitor) const override;

  // The grid element of cell (x, y); -1 outside the map.
  int CellIndex(int x, int y) const;
  // Outside the map a cell reads as 0 and takes nothing.
  int32_t Cell(int x, int y) const;
  void SetCell(int x, int y, int32_t chip);

  // Resizes keeping the overlap of old and new map in place; false, with
  // nothing changed, for a width or height of 0.
  bool SetSize(int width, int height);
  // Brings the start into the map, clears cells naming chips that do not
  // exist and removes events standing outside.
  void Sanitize();

  bool HasEventAt(int x, int y) const { return EventAt(x, y) != nullptr; }
  const cEdWorldEvent* EventAt(int x, int y) const;
  cEdWorldEvent* EventAt(int x, int y);
  // Puts `event` on (x, y) in place of any event there.
  void PlaceEvent(cEdWorldEvent event, int x, int y);
  void RemoveEventsAt(int x, int y);
  void RemoveEvent(const cEdWorldEvent* event);
  void ClearChips();
  void ClearEvents() { m_vecEvents.clear(); }

  // The lowest world number that no world page of the placed events uses,
  // leaving out `excluded`; 0 when all are taken.
  int NextWorldNo(const cEdWorldEvent* excluded) const;
  // Numbers the world pages of an event about to be placed.
  void AssignWorldNos(cEdWorldEvent& event, const cEdWorldEvent* excluded) const;

 protected:
  void Register(uint32_t version) override;

 private:
  void GiveOldFilesTheirChips();
  void FitGridShape();
};

// The shift of the row stride for a width: the halvings that bring
// width - 1 to 0.
int PitchShiftFor(int width);

cEdWorldMap& WorldMap();

}  // namespace velmora
