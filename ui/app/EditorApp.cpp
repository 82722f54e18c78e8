#include "ui/app/EditorApp.h"

#include <QApplication>
#include <QDir>
#include <QFontMetrics>
#include <QScreen>
#include <QSocketNotifier>
#include <QTimer>

#include "core/AppControl.h"
#include "core/DoubleStart.h"
#include "core/EditConfig.h"
#include "core/Log.h"
#include "core/PrjOption.h"
#include "core/ProjectFolder.h"
#include "core/ProjectPaths.h"
#include "core/SaveData.h"
#include "core/SheetSize.h"
#include "core/SystemText.h"
#include "stage/TestPlay.h"
#include "core/TimedBackup.h"
#include "objects/GValInfo.h"
#include "platform/Clock.h"
#include "platform/HeapPolicy.h"
#include "platform/InstanceLock.h"
#include "platform/MessageChannel.h"
#include "platform/Process.h"
#include "platform/Screen.h"
#include "platform/SystemInfo.h"
#include "project/ExitSave.h"
#include "project/ProjectLoad.h"
#include "project/SystemIniDefaults.h"
#include "sound/MusicPlayer.h"
#include "sound/WavePlayer.h"
#include "stage/StageEdit.h"
#include "stage/StageHooks.h"
#include "stage/StageLoader.h"
#include "ui/app/HostWindow.h"
#include "ui/app/LoadMessageDropper.h"
#include "ui/app/SheetMeasure.h"
#include "ui/framework/DialogManager.h"
#include "ui/framework/Hook.h"
#include "ui/framework/IdleWake.h"
#include "ui/framework/QtCatalogue.h"
#include "ui/framework/QtPrompt.h"
#include "ui/framework/QtText.h"
#include "ui/framework/QtTextRenderer.h"

namespace velmora {
namespace {

constexpr int kFrameMs = 1000 / 60;
constexpr int kRebuildDelayMs = 100;
constexpr uint32_t kMsPerMinute = 60000;
constexpr int kLowestDesktopWidth = 640;
constexpr int kLowestDesktopHeight = 480;
// No layer at all: every palette window and the group window hide.
constexpr int kNoLayer = -1;

cUiFont UiFontOf(const QFont& font) {
  const QFontMetrics metrics(font);
  cUiFont result;
  result.face = ToCp932(font.family());
  result.width = metrics.averageCharWidth();
  result.height = metrics.height();
  return result;
}

// The tools as a new stage window finds them: pen on the block layer, a
// brush of one blank record per layer, no range.
void ResetEditTools(cStageEdit& edit) {
  edit.m_iTool = 0;
  edit.m_iLayer = 0;
  edit.m_iReturnLayer = 0;
  edit.m_iCursorMode = 0;
  edit.m_iRightMode = 0;
  edit.m_vecBrushBlock.assign(1, cEdBlock());
  edit.m_vecBrushChara.assign(1, cEdChara());
  edit.m_vecBrushItem.assign(1, cEdItem());
  edit.m_iBrushW = edit.m_iBrushH = 1;
  edit.m_iRangeX = edit.m_iRangeY = -1;
  edit.m_bDrag = 0;
}

}  // namespace

cEditorApp::cEditorApp(cPrompt* prompt) : m_pPrompt(prompt) {}

cEditorApp::~cEditorApp() {
  SetIdleWaker(nullptr);
  SetMessageDropper(nullptr);
  StageHooks() = cStageHooks();
  SetTestPlayHost(nullptr);
  m_pStageWindow.reset();
  delete m_pHost;
  SetAppControl(nullptr);
  if (m_pQtPrompt) SetPrompt(nullptr);
}

int cEditorApp::Run() {
  if (!Start()) {
    ExitApp();
    return 0;
  }
  const int code = QApplication::exec();
  ExitApp();
  return code;
}

// From the settled working directory to the first painted stage window.
bool cEditorApp::Start() {
  KeepLayersInHeap();
  SetDebugLog("EC_Editor.txt", false);
  if (!OpenReportLog("Report_Editor.txt")) return false;
  if (!InstallJapaneseCatalogue()) ReportLine("Qt catalogue qtbase_ja : not found");
  if (QScreen* screen = QGuiApplication::primaryScreen()) {
    SetScreenSize({screen->geometry().width(), screen->geometry().height()});
  }
  m_font = UiFontOf(QApplication::font());
  InstallQtTextRenderer();
  WriteStartupReport(m_font);
  m_pManager = std::make_unique<cDialogManager>();
  if (!m_pPrompt) {
    m_pQtPrompt = std::make_unique<cQtPrompt>(*m_pManager);
    m_pPrompt = m_pQtPrompt.get();
  }
  SetPrompt(m_pPrompt);
  SetIdleWaker([this] { StartIdleTimer(); });
  InstallLoadMessageDropper();
  if (!AskDoubleStart()) return false;
  return InitApp();
}

bool cEditorApp::AskDoubleStart() {
  m_pLock = std::make_unique<cInstanceLock>(kEditorLockName);
  return ConfirmDoubleStart(*m_pLock);
}

bool cEditorApp::InitApp() {
  SetAppVersion();
  m_strCurrentDir = QDir::currentPath().toStdString();
  if (!CreateDefaultData(nullptr)) {
    g_bNoSave = 1;
    return false;
  }
  CreateProjectFolders();
  if (!EditorConfig().LoadFile(PathOf(ePath::EditConfig))) DebugText(SysText("EditConfig.Load 失敗"));
  if (!LoadProject()) {
    ErrorBoxText(SysText(g_bFileTooNew ? "プロジェクトのロードに失敗しました！"
                                       : "プロジェクトのロードに失敗しました！フォルダやファイルの位置や名称が変更された可能性があります！"));
    EditorConfig().m_strLastStage.clear();
    EditorConfig().SaveFile(PathOf(ePath::EditConfig));
    g_bNoSave = 1;
    return false;
  }
  OpenLastStage(EditorConfig().m_strLastStage);
  InstallStageHooks();
  ReadProjectSystemIni();
  if (!StartSound()) return false;
  if (!CreateHostWindow()) {
    StopOutOfMemory();
    return false;
  }
  if (!CreateStageWindow()) return false;
  ListenForGames();
  CollectEndedChildren();
  if (RestoreSheetRate()) RunTimedBackup();
  m_pManager->SetSheetRate(m_sheetRate);
  ReportLine("Sheet Rate = (%lf,%lf)", m_sheetRate.x, m_sheetRate.y);
  m_bStarted = true;
  return true;
}

bool cEditorApp::StartSound() {
  MusicPlayer().Init(1, g_aOggTracks, g_aMidiTracks, 1, ProjectSystemIni().nMidiDirectMusic);
  MusicPlayer().SetTrack(0, "bgm\\Free.ogg", 100);
  return WavePlayer().Open("waveaudio", {"wave\\free.wav"}) != 0;
}

bool cEditorApp::CreateHostWindow() {
  m_pHost = new cHostWindow(*this);
  SetAppControl(m_pHost);
  m_pHost->show();
  return true;
}

bool cEditorApp::CreateStageWindow() {
  m_pStageWindow = std::make_unique<cStageWindow>(*m_pManager, nullptr, *this);
  if (!m_pStageWindow->Open()) return false;
  m_pStageWindow->Window()->activateWindow();
  SetActiveWindow(OwnerOf(m_pStageWindow->Window()));
  return true;
}

// A stored measurement counts while the system and font are unchanged;
// otherwise a real page is measured and the figure stored.
bool cEditorApp::RestoreSheetRate() {
  SheetSize stored;
  const cSystemFacts facts = ReadSystemFacts();
  if (stored.LoadFile(PathOf(ePath::SheetSize)) &&
      StoredSheetRateFits(stored, g_nFileVersion, facts.osMajor, facts.osMinor, m_font)) {
    m_sheetRate = {stored.m_dRateX, stored.m_dRateY};
    ReportLine("Sheet Rate : OK");
    return true;
  }
  const QSize client = MeasurePageClient(*m_pManager, m_pStageWindow->Window());
  m_sheetRate = SheetRateFromClient(client.width(), client.height());
  stored.m_nSystemMajor = facts.osMajor;
  stored.m_nSystemMinor = facts.osMinor;
  stored.m_strFontFace = m_font.face;
  stored.m_nFontWidth = m_font.width;
  stored.m_nFontHeight = m_font.height;
  stored.m_dRateX = m_sheetRate.x;
  stored.m_dRateY = m_sheetRate.y;
  stored.SaveFile(PathOf(ePath::SheetSize));
  return false;
}

void cEditorApp::RunTimedBackup() {
  PrjOption& option = ProjectOption();
  if (!option.m_bBackup) return;
  const int64_t now = NowMs() / kMsPerMinute;
  if (!IsBackupDue(now, option.m_nLastBackupMinute, option.m_nBackupHours)) return;
  option.m_nLastBackupMinute = static_cast<int32_t>(now);
  option.SaveFile(PathOf(ePath::PrjOption));
  const OwnerWindow owner = OwnerOf(m_pStageWindow->Window());
  if (!BackupData(owner)) {
    ReportText(SysText("「data」フォルダのバックアップに失敗…"));
    DebugText(SysText("「data」フォルダのバックアップに失敗…"));
  }
  if (!BackupEditData(owner)) {
    ReportText(SysText("「e_data」フォルダのバックアップに失敗…"));
    DebugText(SysText("「e_data」フォルダのバックアップに失敗…"));
  }
}

// ---- the main loop ----

// The Qt event loop waits for events; this timer runs the idle work at the
// frame rate only while some window animates, and stops itself after.
void cEditorApp::StartIdleTimer() {
  if (!m_pIdleTimer) {
    m_pIdleTimer = new QTimer(m_pHost);
    m_pIdleTimer->setTimerType(Qt::PreciseTimer);
    m_pIdleTimer->setInterval(kFrameMs);
    QObject::connect(m_pIdleTimer, &QTimer::timeout, m_pHost, [this] {
      if (!m_bActive || !AnyWindowWantsIdle()) m_pIdleTimer->stop();
      if (IdleStep() == 0) QApplication::quit();
    });
  }
  if (m_bActive) {
    if (!m_pIdleTimer->isActive()) m_pIdleTimer->start();
    return;
  }
  const cPaletteWindows* palettes = m_pStageWindow ? m_pStageWindow->Palettes() : nullptr;
  if (palettes && palettes->RepaintWanted()) RepaintPalettesSoon();
}

// While the application is inactive the loop only waits, and the active
// flag stays clear from the start of a test play until the application's
// state changes, which it needn't: a brush picked meanwhile still shows at
// once.
void cEditorApp::RepaintPalettesSoon() {
  if (m_bPaletteRepaintPending) return;
  m_bPaletteRepaintPending = true;
  QTimer::singleShot(0, m_pHost, [this] {
    m_bPaletteRepaintPending = false;
    if (m_pStageWindow && m_pStageWindow->Palettes()) m_pStageWindow->Palettes()->IdleRepaint();
  });
}

bool cEditorApp::AnyWindowWantsIdle() const {
  for (const cDialog* dialog : m_pManager->Windows()) {
    if (dialog->WantsIdle()) return true;
  }
  return false;
}

int cEditorApp::IdleStep() {
  if (!m_pStageWindow) return 1;
  if (m_bActive) {
    const QScreen* screen = QGuiApplication::primaryScreen();
    const QRect desktop = screen ? screen->availableGeometry() : QRect();
    if (desktop.width() == kLowestDesktopWidth && desktop.height() == kLowestDesktopHeight) {
      m_bActive = false;
      return 1;
    }
  }
  if (m_bRestoreFocus) {
    m_bRestoreFocus = false;
    if (m_nCurrentMode == 0 && m_pStageWindow->Window()) m_pStageWindow->Window()->activateWindow();
    if (m_nCurrentMode == 1 && m_modeWindows.focus) m_modeWindows.focus();
  }
  ++m_nFrames;
  // A window may close during its own idle call; walk a copy.
  const std::list<cDialog*> windows = m_pManager->Windows();
  for (cDialog* dialog : windows) {
    if (m_pManager->Contains(dialog)) dialog->Idle();
  }
  if (cPaletteWindows* palettes = m_pStageWindow->Palettes()) palettes->IdleRepaint();
  return 1;
}

void cEditorApp::SetActive(bool active) {
  m_bActive = active;
  if (active) StartIdleTimer();
}

void cEditorApp::ActivationChanged(bool active) {
  SetActive(active);
  ApplyWindowSteps(m_windowSet.ActivationChanged(active));
}

void cEditorApp::StageWindowMinimised() { ApplyWindowSteps(m_windowSet.UserMinimised()); }

void cEditorApp::StageWindowRestored() { ApplyWindowSteps(m_windowSet.RestoredFromTaskBar()); }

void cEditorApp::SetCurrentMode(int mode, const cModeWindows& windows) {
  m_nCurrentMode = mode;
  m_modeWindows = windows;
}

void cEditorApp::ApplyWindowSteps(const cWindowSetSteps& steps) {
  cPaletteWindows* palettes = m_pStageWindow ? m_pStageWindow->Palettes() : nullptr;
  if (steps.hideSet && m_nCurrentMode == 1 && m_modeWindows.hidePalettes) m_modeWindows.hidePalettes();
  else if (steps.hideSet && palettes) palettes->ShowLayer(kNoLayer);
  if (steps.minimiseHost && m_pHost) m_pHost->setWindowState(m_pHost->windowState() | Qt::WindowMinimized);
  if (steps.restore) RestoreWindows();
}

// The main window returns to normal, the stage window and the palettes of
// its layer come back as the settings hold them, and the next idle step
// gives the focus back.
void cEditorApp::RestoreWindows() {
  if (m_pHost) m_pHost->setWindowState(m_pHost->windowState() & ~Qt::WindowMinimized);
  m_bRestoreFocus = true;
  if (m_nCurrentMode == 1 && m_modeWindows.restore) {
    m_modeWindows.restore();
  } else if (m_pStageWindow && m_pStageWindow->Window()) {
    m_pStageWindow->Window()->showNormal();
    if (m_pStageWindow->Palettes()) m_pStageWindow->Palettes()->ShowLayer(StageEdit().m_iLayer);
  }
  StartIdleTimer();
}

// ---- the stage window's life ----

void cEditorApp::RequestRebuild() {
  if (m_bRebuildPending) return;
  m_bRebuildPending = true;
  QTimer::singleShot(kRebuildDelayMs, m_pHost, [this] { RebuildStageWindow(); });
}

void cEditorApp::RebuildStageWindow() {
  m_bRebuildPending = false;
  m_pStageWindow.reset();
  // Path and stage flag outlive the reset of the tools.
  const std::string path = StageEdit().m_strPath;
  const int32_t hasStage = StageEdit().m_bHasStage;
  ResetEditTools(StageEdit());
  StageEdit().m_strPath = path;
  StageEdit().m_bHasStage = hasStage;
  if (CreateStageWindow()) m_pStageWindow->Window()->setFocus();
}

void cEditorApp::CloseEditor() {
  if (m_pHost) m_pHost->DestroyMainWindow();
}

void cEditorApp::OnHostDestroyed() {
  m_pStageWindow.reset();
  QApplication::quit();
}

void cEditorApp::ExitApp() {
  m_pStageWindow.reset();  // keeps its place in the settings saved next
  SaveOnExit(EditorConfig(), m_bStarted);
  MusicPlayer().Shutdown();
  WavePlayer().Close();
  cHook::Uninstall();
  if (m_pLock) m_pLock->Release();
}

// The game program tells of its end through a socket that the event loop
// watches; a second editor of the user finds the name taken and goes
// without the message.
void cEditorApp::ListenForGames() {
  m_pGameMessages = std::make_unique<cMessageReceiver>();
  if (!m_pGameMessages->Open(EditorChannelName())) return;
  m_pGameNotifier = new QSocketNotifier(m_pGameMessages->Fd(), QSocketNotifier::Read, m_pHost);
  QObject::connect(m_pGameNotifier, &QSocketNotifier::activated, m_pHost,
                   [this] { TakeGameMessages(*m_pGameMessages); });
}

// A game that ends after its message, or without one, is collected as it
// ends rather than left defunct until the next start.
void cEditorApp::CollectEndedChildren() {
  const int fd = ChildEndedFd();
  if (fd < 0) return;
  auto* notifier = new QSocketNotifier(fd, QSocketNotifier::Read, m_pHost);
  QObject::connect(notifier, &QSocketNotifier::activated, m_pHost, [] { TakeEndedGames(); });
}

}  // namespace velmora
