#include <gtest/gtest.h>

#include "EditorOnSample.h"
#include "objects/PaletteTables.h"
#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "ui/whereused/WhereUsedSearch.h"

namespace velmora::testing {
namespace {

class WhereUsedInTheOpenStage : public cEditorOnSample {
 protected:
  void TearDown() override {
    WhereUsedSearch() = cWhereUsedSearch();
    cEditorOnSample::TearDown();
  }
};

// An entry of a stage's own palette is looked for in the stage as the
// author has it, unsaved cells included.
TEST_F(WhereUsedInTheOpenStage, AStagePaletteEntryIsFoundInTheOpenStageAsItStands) {
  cStage& stage = EditStage();
  ASSERT_GE(stage.m_vecCharaPlt.size(), 2u);
  cEdChara& cell = stage.m_vecCharaCell[static_cast<size_t>(stage.CellIndex(2, 3))];
  cell = stage.m_vecCharaPlt[1];
  cell.m_nGraphicNo = 1;
  cell.m_nInheritSrc = kInheritStage;
  cell.m_nInheritNo = 1;

  cWhereUsedSearch& search = WhereUsedSearch();
  search.kind = static_cast<int>(eUseKind::StageChara);
  search.number = 1;
  search.Run();
  ASSERT_EQ(1u, search.results.size());
  std::string file = StageEdit().m_strPath;
  EXPECT_EQ(file.substr(file.find("data")), search.results[0].file);
  EXPECT_EQ(2, search.results[0].use.x);
  EXPECT_EQ(3, search.results[0].use.y);

  search.number = 2;
  search.Run();
  EXPECT_TRUE(search.results.empty());
}

}  // namespace
}  // namespace velmora::testing
