#include <QApplication>

#include "core/EditConfig.h"
#include "core/ProjectPaths.h"
#include "stage/TestPlay.h"
#include "stage/StageHooks.h"
#include "ui/app/EditorApp.h"
#include "ui/app/HostWindow.h"
#include "ui/entries/OpenEntryEditor.h"

// What the stage logic and the test play ask of the windows, answered by
// the application and its stage window.

namespace velmora {
namespace {

class cEditorTestPlayHost : public cTestPlayHost {
 public:
  explicit cEditorTestPlayHost(cEditorApp& app) : m_app(app) {}
  // The undo buttons follow the history both ways: off while the game
  // runs, back with the history after it.
  void ClearHistory() override {
    cTestPlayHost::ClearHistory();
    UpdateStageWindow();
  }
  void AllocHistory() override {
    cTestPlayHost::AllocHistory();
    UpdateStageWindow();
  }
  void RedrawStageWindow() override {
    if (m_app.StageWindow()) m_app.StageWindow()->Repaint();
  }
  // The active flag follows the application's state here too: when the
  // game's window never took the focus, no change of it will come to set
  // the flag again.
  void ActivateStageWindow() override {
    if (m_app.StageWindow() && m_app.StageWindow()->Window()) m_app.StageWindow()->Window()->activateWindow();
    m_app.SetActive(QGuiApplication::applicationState() == Qt::ApplicationActive);
  }
  void ClearActiveFlag() override { m_app.ClearActiveFlag(); }
  void ShowTestPlayState() override {
    if (m_app.StageWindow()) m_app.StageWindow()->ShowTestPlayStatus();
  }

 private:
  void UpdateStageWindow() {
    if (m_app.StageWindow()) m_app.StageWindow()->UpdateStates();
  }

  cEditorApp& m_app;
};

}  // namespace

template <class Entry>
void cEditorApp::EditCell(Entry& cell) {
  if (!m_pStageWindow) return;
  const cEditPlace place{kEditCell, kEntryKindOf<Entry>, -1};
  EditEntryAt<Entry>(*m_pManager, m_pStageWindow->Window(), place, &cell, {});
  m_pStageWindow->Repaint();
}

void cEditorApp::InstallStageHooks() {
  cStageHooks& hooks = StageHooks();
  hooks.refreshUndoButtons = [this] {
    if (m_pStageWindow) m_pStageWindow->UpdateStates();
  };
  hooks.busyCursor = [](bool busy) {
    if (busy) QApplication::setOverrideCursor(Qt::WaitCursor);
    else QApplication::restoreOverrideCursor();
  };
  hooks.layerShown = [this](int layer) {
    if (m_pStageWindow) m_pStageWindow->LayerShown(layer);
  };
  // A placed object's editor is modal: the layer the search switched to
  // comes back when it closes.
  hooks.editBlock = [this](cEdBlock& cell) { EditCell(cell); };
  hooks.editChara = [this](cEdChara& cell) { EditCell(cell); };
  hooks.editItem = [this](cEdItem& cell) { EditCell(cell); };
  hooks.saveEditorSettings = [] { EditorConfig().SaveFile(PathOf(ePath::EditConfig)); };
  hooks.destroyMainWindow = [this] { CloseEditor(); };
  m_pTestPlayHost = std::make_unique<cEditorTestPlayHost>(*this);
  SetTestPlayHost(m_pTestPlayHost.get());
}

}  // namespace velmora
