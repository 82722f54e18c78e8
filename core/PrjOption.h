#pragma once
#include <array>
#include <string>
#include <vector>

#include "core/SaveData.h"
#include "objects/Block.h"
#include "objects/Chara.h"
#include "objects/Item.h"

namespace velmora {

// The three moments at which an entry gets default inheritance.
enum eInheritMoment : int {
  kMomentStage = 0,         // 「ステージ」: a new entry in a stage palette
  kMomentCommonPlaced = 1,  // 「コモン→配置」: a common entry placed on the stage
  kMomentStagePlaced = 2,   // 「ステージ→配置」: a stage entry placed on the stage
};
enum eEntryKind : int { kKindBlock = 0, kKindChara = 1, kKindItem = 2 };

// The options of a project, kept in data\PrjOption.dat.
class PrjOption : public cSaveData {
 public:
  // Default inherit source per moment and kind (combo values 0, 1, 2).
  std::array<std::array<int32_t, 3>, 3> m_anDefSrc{};
  int32_t m_bAutoGame = 1;
  std::string m_strGamePath;  // used when m_bAutoGame is 0
  int32_t m_nOldStage = 2;    // OptionList OldStageHandling
  int32_t m_bBackup = 1;
  int32_t m_nBackupHours = 0;
  int32_t m_nLastBackupMinute = 0;
  // What a newly made palette entry holds.
  cEdBlock m_DefBlock;
  cEdChara m_DefChara;
  cEdItem m_DefItem;
  // Default inherit flags per moment and kind.
  std::array<std::array<std::vector<uint8_t>, 3>, 3> m_vDefFlags;

  PrjOption() { SetUp(); }
  void SetUp();
  void Load(cDataFile& file) override;
  void Save(cDataFile& file) override;
  void VisitNested(cNestedVisitor& visitor) const override;

  // Whether every default flag vector has its kind's number of groups.
  bool FlagsHaveFullLength() const;

 protected:
  void Register(uint32_t version) override;
};

// The number of inherit groups of a kind.
int InheritGroupCount(eEntryKind kind);

// The project's options, one for the process.
PrjOption& ProjectOption();

}  // namespace velmora
