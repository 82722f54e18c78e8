#pragma once
#include <memory>
#include <string>

#include "core/SheetRate.h"
#include "core/StartupReport.h"
#include "ui/app/WindowSetState.h"
#include "ui/stage/StageWindow.h"

class QApplication;
class QSocketNotifier;
class QTimer;
class QWidget;

namespace velmora {

class cDialogManager;
class cHostWindow;
class cInstanceLock;
class cMessageReceiver;
class cPrompt;
class cTestPlayHost;
class cQtPrompt;

// The application object: start-up in its fixed order, the main loop and
// the way out. One per process.
class cEditorApp : public cStageWindowHost {
 public:
  // A prompt given here answers the questions instead of real dialogs.
  explicit cEditorApp(cPrompt* prompt = nullptr);
  ~cEditorApp() override;
  cEditorApp(const cEditorApp&) = delete;
  cEditorApp& operator=(const cEditorApp&) = delete;

  // The whole life of the editor in the current directory, which is the
  // project. Gives the process's exit code.
  int Run();
  // Start-up up to the first stage window; false when the editor must end.
  bool Start();
  bool InitApp();
  // One pass of the idle work; 0 asks the loop to end.
  int IdleStep();
  void ExitApp();

  cStageWindow* StageWindow() const { return m_pStageWindow.get(); }
  cDialogManager& Manager() const { return *m_pManager; }
  cHostWindow* Host() const { return m_pHost; }
  const cSheetRate& SheetRate() const { return m_sheetRate; }
  bool Started() const { return m_bStarted; }

  void RequestRebuild() override;
  void CloseEditor() override;

  void StageWindowMinimised() override;
  void StageWindowRestored() override;
  void SetCurrentMode(int mode, const cModeWindows& windows) override;
  int CurrentMode() const { return m_nCurrentMode; }

  // The host window's events.
  void SetActive(bool active);
  // The application came to the front or went behind another.
  void ActivationChanged(bool active);
  bool IsActive() const { return m_bActive; }
  bool IsMinimised() const { return m_windowSet.Minimised(); }
  void RebuildStageWindow();
  void ClearActiveFlag() { m_bActive = false; }
  void OnHostDestroyed();

 private:
  bool AskDoubleStart();
  void InstallStageHooks();
  // The parameter editor of a placed object, for the stage hooks.
  template <class Entry>
  void EditCell(Entry& cell);
  void ListenForGames();
  void CollectEndedChildren();
  void RepaintPalettesSoon();
  void OpenLastEditedStage();
  bool StartSound();
  bool CreateHostWindow();
  bool CreateStageWindow();
  bool RestoreSheetRate();
  void RunTimedBackup();
  void StartIdleTimer();
  void ApplyWindowSteps(const cWindowSetSteps& steps);
  void RestoreWindows();
  bool AnyWindowWantsIdle() const;

  std::unique_ptr<cDialogManager> m_pManager;
  std::unique_ptr<cQtPrompt> m_pQtPrompt;
  cPrompt* m_pPrompt;
  std::unique_ptr<cInstanceLock> m_pLock;
  std::unique_ptr<cTestPlayHost> m_pTestPlayHost;
  std::unique_ptr<cMessageReceiver> m_pGameMessages;
  QSocketNotifier* m_pGameNotifier = nullptr;
  cHostWindow* m_pHost = nullptr;
  std::unique_ptr<cStageWindow> m_pStageWindow;
  QTimer* m_pIdleTimer = nullptr;
  std::string m_strCurrentDir;
  cUiFont m_font;
  cSheetRate m_sheetRate;
  bool m_bActive = true;
  bool m_bStarted = false;
  bool m_bRestoreFocus = false;
  cWindowSetState m_windowSet;
  bool m_bRebuildPending = false;
  bool m_bPaletteRepaintPending = false;
  int m_nCurrentMode = 0;  // 0 the stage editor, 1 the world map editor
  cModeWindows m_modeWindows;  // those of mode 1
  int m_nFrames = 0;
};

}  // namespace velmora
