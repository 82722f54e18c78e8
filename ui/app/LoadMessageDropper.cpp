#include "ui/app/LoadMessageDropper.h"

#include <QApplication>
#include <QEvent>
#include <QObject>

#include <algorithm>
#include <array>

#include "stage/StageLoader.h"

namespace velmora {
namespace {

// What the author does to a window: none of it may reach the editor while
// the stage it works on is being replaced.
constexpr std::array kInputEvents = {
    QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick, QEvent::MouseMove,
    QEvent::KeyPress,         QEvent::KeyRelease,         QEvent::ShortcutOverride,    QEvent::Shortcut,
    QEvent::Wheel,            QEvent::ContextMenu,        QEvent::InputMethod,         QEvent::TouchBegin,
    QEvent::TouchUpdate,      QEvent::TouchEnd,           QEvent::TabletPress,         QEvent::TabletRelease,
    QEvent::TabletMove,       QEvent::NonClientAreaMouseButtonPress,                   QEvent::NonClientAreaMouseButtonDblClick,
};

// A close of any window or the application's quit stands for the quit
// message: it is taken here and answered by ending the load.
class cInputDropper final : public QObject {
 public:
  bool QuitAsked() const { return m_bQuit; }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    const QEvent::Type type = event->type();
    if (type == QEvent::Close || type == QEvent::Quit) {
      event->ignore();
      m_bQuit = true;
      return true;
    }
    return std::find(kInputEvents.begin(), kInputEvents.end(), type) != kInputEvents.end();
  }

 private:
  bool m_bQuit = false;
};

bool DropMessages() {
  QCoreApplication* app = QCoreApplication::instance();
  if (!app) return true;
  cInputDropper dropper;
  app->installEventFilter(&dropper);
  // Timers and sockets wait for the load's end: what they start (a window
  // rebuilt, a history made after a test play) must not run while the
  // command that loads is still under way.
  QCoreApplication::processEvents(QEventLoop::ExcludeSocketNotifiers | QEventLoop::X11ExcludeTimers);
  app->removeEventFilter(&dropper);
  return !dropper.QuitAsked();
}

}  // namespace

void InstallLoadMessageDropper() { SetMessageDropper(DropMessages); }

}  // namespace velmora
