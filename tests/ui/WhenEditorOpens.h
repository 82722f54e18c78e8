#pragma once
#include <QApplication>
#include <QTimer>

#include <functional>

#include "ui/entries/EntryEditor.h"
#include "ui/entries/OpenEntryEditor.h"

namespace velmora::testing {

// Runs `step` on the entry editor once one is open: a modal editor is
// seen from the event loop it runs, however many loops (a stage loading)
// come before it. Gives up after a few seconds.
inline void WhenEditorOpens(std::function<void(cEntryEditorBase& editor)> step) {
  auto* poll = new QTimer(qApp);
  auto tries = std::make_shared<int>(0);
  QObject::connect(poll, &QTimer::timeout, [poll, tries, step] {
    cEntryEditorBase* editor = OpenEntryEditor();
    if (!editor && ++*tries < 250) return;
    poll->stop();
    poll->deleteLater();
    if (editor) step(*editor);
  });
  poll->start(20);
}

}  // namespace velmora::testing
