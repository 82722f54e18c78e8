#pragma once
#include <QApplication>
#include <QTimer>

#include <functional>

#include "ui/entries/EntryEditor.h"
#include "ui/entries/OpenEntryEditor.h"

namespace velmora::testing {

// Runs `step` on what `find` finds once it is there: a modal window is
// seen from the event loop it runs, however many loops (a stage loading)
// come before it. Gives up after a few seconds.
template <class Thing>
void WhenThere(std::function<Thing*()> find, std::function<void(Thing&)> step) {
  auto* poll = new QTimer(qApp);
  auto tries = std::make_shared<int>(0);
  QObject::connect(poll, &QTimer::timeout, [poll, tries, find, step] {
    Thing* thing = find();
    if (!thing && ++*tries < 250) return;
    poll->stop();
    poll->deleteLater();
    if (thing) step(*thing);
  });
  poll->start(20);
}

// The entry editor, once one is open.
inline void WhenEditorOpens(std::function<void(cEntryEditorBase& editor)> step) {
  WhenThere<cEntryEditorBase>(OpenEntryEditor, std::move(step));
}

// A window of the title `utf8` that is shown; the same for the modal
// window of that title and for a pop-up menu.
inline QWidget* ShownWindow(const char* utf8) {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->isVisible() && widget->windowTitle() == QString::fromUtf8(utf8)) return widget;
  }
  return nullptr;
}
inline void WhenModalShows(const char* utf8, std::function<void(QWidget& window)> step) {
  WhenThere<QWidget>(
      [utf8] {
        QWidget* modal = QApplication::activeModalWidget();
        return modal && modal->windowTitle() == QString::fromUtf8(utf8) ? modal : nullptr;
      },
      std::move(step));
}
inline void WhenPopupShows(std::function<void(QWidget& popup)> step) {
  WhenThere<QWidget>(QApplication::activePopupWidget, std::move(step));
}

}  // namespace velmora::testing
