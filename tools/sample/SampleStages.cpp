#include "sample/SampleStages.h"

#include "core/PrjOption.h"
#include "objects/Inherit.h"
#include "objects/PaletteTables.h"
#include "objects/Palette.h"
#include "platform/TextCodec.h"
#include "stage/Stage.h"

namespace velmora::sample {
namespace {

// Places a common palette entry in a cell the way the editor's brush does:
// a copy that inherits with the project's 「コモン→配置」 defaults.
template <class T>
void Place(std::vector<T>& cells, const std::vector<T>& palette, int index, int number, eEntryKind kind) {
  T cell = palette[static_cast<size_t>(number)];
  SetInherit(cell, kInheritCommon, number, ProjectOption().m_vDefFlags[kMomentCommonPlaced][kind]);
  cells[static_cast<size_t>(index)] = cell;
}

// The most levels a stage can have: new authors try the sample first, and
// each of its stages costs a few megabytes of history at this depth.
constexpr int kSampleUndoLevels = 9;

struct cStagePlan {
  const char* path;
  const char* name;
  int width;
  int enemies;  // every this many cells; 0 for none
  int gapEvery; // a hole in the ground every this many cells; 0 for none
};

const cStagePlan kStages[] = {
    {"data\\stg4\\Default.stg4_950", "デフォルト", 20, 0, 0},
    {"data\\stg4\\Stage1.stg4_950", "はじまりの草原", 60, 12, 0},
    {"data\\stg4\\Stage2.stg4_950", "レンガの谷", 80, 9, 17},
};

bool WriteStage(const cStagePlan& plan) {
  cStage stage;
  stage.InitDefault();
  stage.SetSize(plan.width, 15, 0, 0);
  stage.m_strName = ToCp932(plan.name);
  stage.m_iUndoCount = kSampleUndoLevels;
  const cPalette& palette = CommonPalette();
  for (int x = 0; x < plan.width; ++x) {
    const bool gap = plan.gapEvery && x % plan.gapEvery == plan.gapEvery - 1;
    if (!gap) {
      Place(stage.m_vecBlockCell, palette.m_vecBlockPlt, stage.CellIndex(x, 14), 1, kKindBlock);
      Place(stage.m_vecBlockCell, palette.m_vecBlockPlt, stage.CellIndex(x, 13), 2, kKindBlock);
    }
    if (x % 7 == 4) Place(stage.m_vecItemCell, palette.m_vecItemPlt, stage.CellIndex(x, 10), 1, kKindItem);
    if (plan.enemies && x % plan.enemies == plan.enemies - 1) {
      Place(stage.m_vecCharaCell, palette.m_vecCharaPlt, stage.CellIndex(x, 12), 2, kKindChara);
    }
  }
  Place(stage.m_vecCharaCell, palette.m_vecCharaPlt, stage.CellIndex(2, 12), 1, kKindChara);
  return stage.SaveFile(plan.path) != 0;
}

}  // namespace

bool WriteSampleStages(std::vector<std::string>& paths) {
  for (const cStagePlan& plan : kStages) {
    if (!WriteStage(plan)) return false;
    paths.push_back(plan.path);
  }
  return true;
}

}  // namespace velmora::sample
