#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "core/SaveData.h"
#include "objects/CondList.h"
#include "objects/Move.h"
#include "objects/OwnedRecord.h"
#include "objects/Shot.h"

namespace velmora {

class cEdFlow;

// One command of a flow or of an item. Its numbers stand in m_vParam, the
// larger parameter sets in the record its kind owns.
class cEdCmd final : public cSaveData {
 public:
  uint8_t m_bItemCmd = 0;  // numbered by ItemCmdTable, in an item's list
  uint8_t m_nKind = 0;
  std::string m_strText;
  int16_t m_nTime = 0;
  int16_t m_nTimeClone = 0;
  uint8_t m_bParallel = 0;
  int16_t m_nSound = 0;
  uint8_t m_bNoSoundOffscreen = 1;
  int16_t m_nAnime = 0;

  cOwnedRecord<cEdMove> m_pMove;
  cOwnedRecord<cEdShot> m_pShot;
  cOwnedRecord<cCondList> m_pCondList;
  std::vector<cEdFlow> m_vSubFlow;  // no editor control; kept as it is
  std::vector<int32_t> m_vParam;

  cEdCmd();
  cEdCmd(const cEdCmd& other);
  cEdCmd& operator=(const cEdCmd& other);
  cEdCmd(cEdCmd&& other) noexcept;
  cEdCmd& operator=(cEdCmd&& other) noexcept;
  ~cEdCmd() override;

  // Makes this a new command of a kind, as the flow editor inserts one.
  void SetUpNew(int kind, bool itemCmd);

  void Load(cDataFile& file) override;
  void Save(cDataFile& file) override;
  void VisitNested(cNestedVisitor& visitor) const override;
  bool operator==(const cEdCmd& other) const;

  // The kind in CmdTable numbering.
  int TableKind() const;

  // Repairs against the database; runs after load and before save.
  void CheckCmd();
  // Repairs against the palettes, once they are all in place.
  void CheckCmdRefs();

 protected:
  void Register(uint32_t version) override;
};

// Brings a command of a file below the current version up to date; Load
// runs it.
void UpgradeCmd(cEdCmd& cmd);

}  // namespace velmora
