#pragma once
#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

#include "core/SaveData.h"
#include "project/EffectCatalog.h"

namespace velmora {

class cEdEffectFrame : public cSaveData {
 public:
  int32_t m_iCell = 0;
  int32_t m_iTime = 1;  // 1/10 s

  cEdEffectFrame() { SetUp(); }
  void SetUp();

 protected:
  void Register(uint32_t version) override;
};

// An animated effect cut from a bitmap of cells.
class cEdEffect : public cSaveData {
 public:
  std::string m_strName;
  int32_t m_bNameFromFile = 0;
  std::string m_strPath;
  int32_t m_iWidth = 32;   // of one cell, in dots
  int32_t m_iHeight = 32;
  int32_t m_bAllowGiant = 0;
  std::vector<cEdEffectFrame> m_vecFrames;

  cEdEffect() { SetUp(); }
  void SetUp();
  void Load(cDataFile& file) override;
  void Save(cDataFile& file) override;
  void VisitNested(cNestedVisitor& visitor) const override;

 protected:
  void Register(uint32_t version) override;
};

// A character or screen effect: a kind of its catalogue and five numbers
// whose meaning the kind gives.
class cEdKindEffect : public cSaveData {
 public:
  static constexpr int kParamCount = cEffectCatalog::kParamCount;

  std::string m_strName;
  int32_t m_iKind = 1;
  int32_t m_aiParam[kParamCount] = {};

  void SetUp();
  virtual const cEffectCatalog& Catalog() const = 0;

 protected:
  void Register(uint32_t version) override;
  // Before 511 some kinds had one parameter fewer; the new one takes the
  // catalogue's default.
  void FillParamsAddedIn511(int slot, std::initializer_list<int> kinds);
};

class cEdCharaEffect : public cEdKindEffect {
 public:
  cEdCharaEffect() { SetUp(); }
  const cEffectCatalog& Catalog() const override { return CharaEffectCatalog(); }
  void Load(cDataFile& file) override;
};

class cEdScrEffect : public cEdKindEffect {
 public:
  cEdScrEffect() { SetUp(); }
  const cEffectCatalog& Catalog() const override { return ScrEffectCatalog(); }
  void Load(cDataFile& file) override;
};

}  // namespace velmora
