#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "core/SaveData.h"

namespace velmora {

// An item of the game's status window.
class cEdSysGauge : public cSaveData {
 public:
  int32_t m_bShow = 1;
  int32_t m_bSymbol = 1;
  std::string m_strText;
  int32_t m_iDigits = 0;
  int32_t m_bShowValue = 1;
  int32_t m_iBarThreshold = 0;
  int32_t m_bBarPercent = 0;

  cEdSysGauge() { SetUp(); }
  void SetUp();

 protected:
  void Register(uint32_t version) override;
};

// An entry of one of the game's menus.
class cEdSysMenuItem : public cSaveData {
 public:
  int32_t m_bEnabled = 1;
  std::string m_strText;

  cEdSysMenuItem() { SetUp(); }
  cEdSysMenuItem(bool enabled, const char* utf8Text);
  void SetUp();

 protected:
  void Register(uint32_t version) override;
};

// The ranking of one game mode and the columns it shows.
class cEdSysRanking : public cSaveData {
 public:
  static constexpr int kColumnCount = 5;

  int32_t m_bEnabled = 0;
  std::vector<uint8_t> m_abColumns;

  cEdSysRanking() { SetUp(); }
  void SetUp();
  void SetAll(bool on);
  void Load(cDataFile& file) override;
  void Save(cDataFile& file) override;
  void VisitNested(cNestedVisitor& visitor) const override;

 protected:
  void Register(uint32_t version) override;
};

// A key of "System.ini" with the value the game takes when the key is
// missing there.
class cEdSysOption : public cSaveData {
 public:
  enum eType { TypeNumber, TypeString };

  int32_t m_iType = TypeNumber;
  std::string m_strKey;
  int32_t m_iDefault = 0;
  std::string m_strDefault;

  cEdSysOption() { Reset(); }
  cEdSysOption(eType type, const char* key, int32_t value);

 protected:
  void Register(uint32_t version) override;
};

}  // namespace velmora
