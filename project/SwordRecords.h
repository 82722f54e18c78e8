#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "core/SaveData.h"

namespace velmora {

// One position of a sword swing.
class cEdSwordPos : public cSaveData {
 public:
  int32_t m_iOffsetX = 0;
  int32_t m_iOffsetY = 0;
  int32_t m_bFlipX = 1;
  int32_t m_bFlipY = 0;
  int32_t m_iDirection = 0;  // 0 front, 1 back, 2 up, 3 down
  int32_t m_iSrcX = 0;
  int32_t m_iSrcY = 0;
  int32_t m_iWidth = 0;
  int32_t m_iHeight = 0;
  int32_t m_iTime = 0;  // 1/10 s

  cEdSwordPos() { SetUp(); }
  void SetUp();

 protected:
  void Register(uint32_t version) override;
};

class cEdSwordType : public cSaveData {
 public:
  std::string m_strName;
  int32_t m_bNameFromFile = 0;
  std::string m_strLeftPath;
  std::string m_strRightPath;
  std::vector<cEdSwordPos> m_vecPositions;

  cEdSwordType() { SetUp(); }
  void SetUp();
  void Load(cDataFile& file) override;
  void Save(cDataFile& file) override;
  void VisitNested(cNestedVisitor& visitor) const override;

 protected:
  void Register(uint32_t version) override;
};

}  // namespace velmora
