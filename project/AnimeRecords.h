#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "core/SaveData.h"
#include "objects/PaletteTables.h"

namespace velmora {

// One step of an animation pattern.
class cEdAnimeFrame : public cSaveData {
 public:
  int32_t m_iCell = 0;  // counted from the animation's starting cell
  int32_t m_iTime = 1;  // 1/10 s
  int32_t m_bCommand = 0;

  cEdAnimeFrame() { SetUp(); }
  void SetUp();

 protected:
  void Register(uint32_t version) override;
};

class cEdAnime : public cSaveData {
 public:
  std::string m_strName;
  int16_t m_iSampleNo = 0;
  int8_t m_cSampleKind = kGraphicKindChara;  // what the preview shows the animation on
  int16_t m_iSampleCell = 0;
  std::vector<cEdAnimeFrame> m_vecFrames;

  cEdAnime() { SetUp(); }
  void SetUp();
  void Load(cDataFile& file) override;
  void Save(cDataFile& file) override;
  void VisitNested(cNestedVisitor& visitor) const override;

 protected:
  void Register(uint32_t version) override;
};

// A basic animation set: the four fixed slots standing, walking, flying and
// flying while moving.
class cEdAnimeSet : public cSaveData {
 public:
  static constexpr int kSlotCount = 4;

  std::string m_strName;
  int32_t m_iInvincibleShift = 4;
  int32_t m_iBlockShift = 8;
  int32_t m_iFlyShift = 0;
  std::vector<cEdAnime> m_vecAnime;

  cEdAnimeSet() { SetUp(); }
  void SetUp();
  void Load(cDataFile& file) override;
  void Save(cDataFile& file) override;
  void VisitNested(cNestedVisitor& visitor) const override;

 protected:
  void Register(uint32_t version) override;
};

}  // namespace velmora
