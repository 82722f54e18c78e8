#pragma once
#include <array>
#include <string>

#include "core/SaveData.h"
#include "core/WindowPlace.h"

namespace velmora {

// The editor's own state between runs, kept in e_data\EditConfig.dat.
class EditConfig : public cSaveData {
 public:
  static constexpr int kPlaceCount = 11;
  // Place 0 is the stage editor; 1 to 7 are the palette windows of the
  // three edit modes, paired by visibility (see SharePairedVisibility); the
  // last three are the world map window and its two palettes.
  enum ePlace { PlaceStageEditor = 0, PlaceWorldMap = 8, PlaceWorldChips = 9, PlaceWorldEvents = 10 };

  std::string m_strLastStage;
  std::string m_strTemplateStage;
  int32_t m_nStagePaletteChoice = 1;
  std::string m_strStagePaletteFile;
  int32_t m_anEditPage[3] = {};  // block, character, item editors
  int32_t m_nSizeDirX = 0;
  int32_t m_nSizeDirY = 0;
  int32_t m_bEditIfPlaced = 0;
  int32_t m_bEditBeforePlace = 1;
  int32_t m_bAutoWorldNumber = 1;
  int32_t m_bBmpUseTrans = 1;
  int32_t m_nBmpTransColor = 0;
  int32_t m_bBmpReplaceLine = 0;
  int32_t m_nBmpLineIn = 1;
  int32_t m_nBmpLineOut = 15;
  int32_t m_bBmpSameAsInput = 0;
  std::string m_strBmpFolder;
  std::array<cWindowPlace, kPlaceCount> m_aPlace;

  EditConfig() { SetUp(); }
  void SetUp();
  void Load(cDataFile& file) override;
  void Save(cDataFile& file) override;
  void VisitNested(cNestedVisitor& visitor) const override;
  // The window pairs of the three modes show and hide together.
  void SharePairedVisibility();

 protected:
  void Register(uint32_t version) override;
};

// The editor's one instance, loaded at start-up and saved on the way out.
EditConfig& EditorConfig();

}  // namespace velmora
