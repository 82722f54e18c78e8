#pragma once
#include <QApplication>
#include <QMouseEvent>
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "EditorLock.h"
#include "core/SaveData.h"
#include "sample/SampleProject.h"
#include "support/ScriptedPrompt.h"
#include "support/TempProject.h"
#include "ui/app/EditorApp.h"
#include "ui/controls/ScrollBar.h"
#include "ui/framework/Commands.h"
#include "ui/framework/DialogWindow.h"

namespace velmora::testing {

// The editor started on a fresh copy of the sample project, with its
// stage window and the palette windows it owns, driven as the author
// drives it.
class cEditorOnSample : public ::testing::Test {
 protected:
  void SetUp() override {
    std::string error;
    ASSERT_TRUE(sample::MakeSampleProject(project.Path(), false, error)) << error;
    otherEditor = HoldEditorLock();
    ASSERT_NE(otherEditor, nullptr);
    StartEditor();
    ASSERT_NE(app->StageWindow()->Palettes(), nullptr);
  }
  // The test holds the editor's lock itself, so every start meets the
  // double-start question, whatever else runs beside it, and goes on.
  void StartEditor() {
    app.reset();
    prompt.QueueAnswer(eAnswer::Yes);
    app = std::make_unique<cEditorApp>(&prompt);
    ASSERT_TRUE(app->Start());
    ASSERT_FALSE(prompt.Shown().empty());
    EXPECT_EQ(prompt.Shown().front().caption, "二重起動");
  }
  void TearDown() override {
    app.reset();
    g_bNoSave = 0;
  }

  cStageWindow& Stage() { return *app->StageWindow(); }
  cPaletteWindows& Palettes() { return *Stage().Palettes(); }
  static QWidget* ClientOf(cDialog& dialog) { return static_cast<cDialogWindow*>(dialog.Window())->Client(); }
  static void Command(cDialog& dialog, int id) { dialog.SendCommand(MakeCommand(id, kNoticeClicked), 0); }

  // A press and release of `button` at a point of a window's drawing area.
  static void Click(cDialog& dialog, QPoint at, Qt::MouseButton button = Qt::LeftButton) {
    QWidget* client = ClientOf(dialog);
    QMouseEvent press(QEvent::MouseButtonPress, at, client->mapToGlobal(at), button, button, Qt::NoModifier);
    QApplication::sendEvent(client, &press);
    QMouseEvent release(QEvent::MouseButtonRelease, at, client->mapToGlobal(at), button, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(client, &release);
  }
  // A click in the middle of a palette entry's cell, scrolled into view.
  void PickEntry(cPaletteSide side, int index) {
    cPaletteWindow& window = Palettes().Palette(side);
    window.VertBar()->SetPosition(index / cPaletteWindow::kColumns);
    const int row = index / cPaletteWindow::kColumns - window.TopRow();
    Click(window, QPoint((index % cPaletteWindow::kColumns) * 32 + 16, row * 32 + 16));
  }

  cTempProject project;
  cScriptedPrompt prompt;
  std::unique_ptr<cInstanceLock> otherEditor;
  std::unique_ptr<cEditorApp> app;
};

}  // namespace velmora::testing
