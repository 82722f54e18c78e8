#pragma once
#include <cstdint>
#include <string>

#include "core/SaveData.h"

namespace velmora {

// How far beyond the screen's edges a kind of object may go before it
// vanishes by itself.
class cAutoVanish final : public cSaveData {
 public:
  int32_t m_bLeft = 0;
  int32_t m_bRight = 0;
  int32_t m_bTop = 0;
  int32_t m_bBottom = 0;
  int32_t m_iLeft = 0;  // margins in bl, 0..99
  int32_t m_iRight = 0;
  int32_t m_iTop = 0;
  int32_t m_iBottom = 0;

  // All four edges on with one margin.
  void SetAll(int32_t on, int32_t margin);

 protected:
  void Register(uint32_t version) override;
};

// One background layer of a stage.
class cStageBack final : public cSaveData {
 public:
  int32_t m_bFromStart = 1;
  int32_t m_bUseColor = 0;
  int32_t m_iColor = 16;  // 16..207
  int32_t m_bFront = 0;
  double m_dSpeedX = 0.1;  // 1.0 scrolls with the player
  double m_dSpeedY = 0.1;
  int32_t m_bAutoX = 0;
  int32_t m_bAutoY = 0;
  double m_dAutoSpeedX = 0;
  double m_dAutoSpeedY = 0;
  // Kept for the game program; the editor writes them back as read.
  double m_dReserved1 = 0;
  double m_dReserved2 = 0;
  std::string m_strPath;

  // Files before the separate auto-scroll speed kept it in the scroll
  // speed: move it over and scroll with the player.
  void MoveAutoSpeed();

 protected:
  void Register(uint32_t version) override;

 private:
  void AddRetiredPair();
};

}  // namespace velmora
