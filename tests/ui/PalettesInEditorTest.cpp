#include <QTest>
#include <gtest/gtest.h>

#include "EditorLock.h"
#include "core/EditConfig.h"
#include "core/SaveData.h"
#include "objects/Palette.h"
#include "sample/SampleProject.h"
#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "support/ScriptedPrompt.h"
#include "support/TempProject.h"
#include "ui/app/EditorApp.h"
#include "ui/framework/Commands.h"
#include "ui/framework/DialogWindow.h"

namespace velmora {
namespace {

constexpr cPaletteSide kCommonBlocks{0, 0};

QWidget* ClientOf(cDialog& dialog) { return static_cast<cDialogWindow*>(dialog.Window())->Client(); }

// The editor on the sample project: its stage window with the palette
// windows it owns.
class PalettesInTheEditor : public ::testing::Test {
 protected:
  void SetUp() override {
    std::string error;
    ASSERT_TRUE(sample::MakeSampleProject(project.Path(), false, error)) << error;
    otherEditor = testing::HoldEditorLock();
    ASSERT_NE(otherEditor, nullptr);
    prompt.QueueAnswer(eAnswer::Yes);
    app = std::make_unique<cEditorApp>(&prompt);
    ASSERT_TRUE(app->Start());
    ASSERT_NE(app->StageWindow()->Palettes(), nullptr);
  }
  void TearDown() override {
    app.reset();
    g_bNoSave = 0;
  }
  cStageWindow& Stage() { return *app->StageWindow(); }
  cPaletteWindows& Palettes() { return *Stage().Palettes(); }

  testing::cTempProject project;
  testing::cScriptedPrompt prompt;
  std::unique_ptr<cInstanceLock> otherEditor;
  std::unique_ptr<cEditorApp> app;
};

TEST_F(PalettesInTheEditor, AnEntryPickedInThePaletteWindowBecomesTheBrush) {
  cPaletteWindow& palette = Palettes().Palette(kCommonBlocks);
  ASSERT_TRUE(palette.Window()->isVisible());
  QTest::mouseClick(ClientOf(palette), Qt::LeftButton, {}, QPoint(32 + 16, 16));
  ASSERT_EQ(1, StageEdit().m_iPltIndex);
  const cEdBlock& entry = CommonPalette().m_vecBlockPlt.at(1);
  const cEdBlock& brush = StageEdit().m_vecBrushBlock.at(0);
  EXPECT_EQ(entry.m_nGraphicNo, brush.m_nGraphicNo);
  EXPECT_EQ(entry.m_strName, brush.m_strName);
  EXPECT_EQ(1, brush.m_nInheritNo);
}

TEST_F(PalettesInTheEditor, TheWindowsOfTheCurrentLayerShowAndTheirSettingsToggleThem) {
  const cPaletteSide charas{0, 1};
  EXPECT_FALSE(Palettes().Palette(charas).Window()->isVisible());
  Stage().SendCommand(MakeCommand(40055, kNoticeClicked), 0);
  EXPECT_TRUE(Palettes().Palette(charas).Window()->isVisible());
  EXPECT_FALSE(Palettes().Palette(kCommonBlocks).Window()->isVisible());
  EXPECT_TRUE(Palettes().Group().Window()->isVisible());

  Stage().SendCommand(MakeCommand(40148, kNoticeClicked), 0);
  EXPECT_FALSE(Palettes().Palette(charas).Window()->isVisible());
  EXPECT_TRUE(Palettes().Palette({1, 1}).Window()->isVisible());
  EXPECT_FALSE(EditorConfig().m_aPlace[5].m_bVisible) << "the items' common window follows";
}

}  // namespace
}  // namespace velmora
