#include "ui/app/HostWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QTimer>
#include <cstdlib>

#include "core/Prompt.h"
#include "core/SystemText.h"
#include "ui/app/EditorApp.h"
#include "ui/framework/QtPrompt.h"
#include "ui/framework/QtText.h"
#include "ui/stage/StageViewRules.h"

namespace velmora {
namespace {

constexpr int kHostX = 9999;
constexpr int kHostY = 9999;
constexpr int kHostClientWidth = 640;
constexpr int kHostClientHeight = 480;

}  // namespace

cHostWindow::cHostWindow(cEditorApp& app) : QWidget(nullptr, Qt::Window), m_app(app) {
  setObjectName(QStringLiteral("Velmora_Editor"));
  setWindowTitle(Ui(kProgramTitle));
  // Off-screen: the stage window is what the author sees.
  setGeometry(kHostX, kHostY, kHostClientWidth, kHostClientHeight);
  setAttribute(Qt::WA_DontShowOnScreen);
  QObject::connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
    m_app.ActivationChanged(state == Qt::ApplicationActive);
  });
}

cHostWindow::~cHostWindow() { m_bDestroyed = true; }

void cHostWindow::PostCloseRequest() {
  QTimer::singleShot(0, this, [this] { close(); });
}

void cHostWindow::DestroyMainWindow() {
  if (m_bDestroyed) return;
  m_bDestroyed = true;
  // The window goes once the event under way is done; its end ends the loop.
  QTimer::singleShot(0, qApp, [app = &m_app] { app->OnHostDestroyed(); });
}

void cHostWindow::Beep() { QApplication::beep(); }

void cHostWindow::EndProcess(int code) { std::exit(code); }

bool cHostWindow::event(QEvent* event) {
  // Any move of the window counts as coming to the front.
  if (event->type() == QEvent::Move) m_app.SetActive(true);
  return QWidget::event(event);
}

void cHostWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) PostCloseRequest();
  else QWidget::keyPressEvent(event);
}

// There is no test for unsaved work here; the stage window has its own.
void cHostWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  const eAnswer answer = Prompt().Ask(OwnerOf(this), SysText("終了確認"), SysText("終了しますか？\n"), eButtons::YesNo,
                                      eIcon::Question);
  if (answer == eAnswer::Yes) DestroyMainWindow();
}

}  // namespace velmora
