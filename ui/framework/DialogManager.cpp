#include "ui/framework/DialogManager.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>
#include <algorithm>

#include "core/Log.h"
#include "core/SystemText.h"
#include "ui/framework/Commands.h"
#include "ui/framework/Dialog.h"
#include "ui/framework/Sheet.h"

namespace velmora {
namespace {

// The window whose accelerators may take a key: the active window, or for
// a page, the active sheet's current page.
bool IsActiveTarget(const cDialog& dialog) {
  const QWidget* window = dialog.Window();
  if (!window || window->window() != QApplication::activeWindow()) return false;
  if (dialog.WindowKind() == cDialog::kPage) return dialog.Sheet() && dialog.Sheet()->CurrentPage() == &dialog;
  return true;
}

bool HasFocus(const cDialog& dialog, int focusId) {
  const QWidget* focus = QApplication::focusWidget();
  if (focusId == 0) return true;
  const QWidget* item = dialog.Item(focusId);
  return item && focus && (focus == item || item->isAncestorOf(focus));
}

// A page comes and goes with its sheet.
bool IsTopLevel(const cDialog& dialog) { return dialog.Window() && dialog.WindowKind() != cDialog::kPage; }

// A window that goes without having been entered points at a fault in the
// window's own bookkeeping; the author is told.
template <class T>
bool RemoveEntry(std::list<T*>& entries, T* entry) {
  const auto found = std::find(entries.begin(), entries.end(), entry);
  if (found == entries.end()) {
    ErrorBoxText(SysText("ウインドウの破棄に失敗！"));
    return false;
  }
  entries.erase(found);
  return true;
}

}  // namespace

cDialogManager::cDialogManager() {
  if (qApp) qApp->installEventFilter(this);
}

cDialogManager::~cDialogManager() {
  if (qApp) qApp->removeEventFilter(this);
}

void cDialogManager::Add(cDialog* dialog) {
  if (!Contains(dialog)) m_windows.push_back(dialog);
}

bool cDialogManager::Remove(cDialog* dialog) { return RemoveEntry(m_windows, dialog); }

void cDialogManager::AddSheet(cSheet* sheet) {
  if (std::find(m_sheets.begin(), m_sheets.end(), sheet) == m_sheets.end()) m_sheets.push_back(sheet);
}

bool cDialogManager::RemoveSheet(cSheet* sheet) { return RemoveEntry(m_sheets, sheet); }

bool cDialogManager::Contains(const cDialog* dialog) const {
  return std::find(m_windows.begin(), m_windows.end(), dialog) != m_windows.end();
}

void cDialogManager::ShowAll(bool show) {
  for (cDialog* dialog : m_windows) {
    if (IsTopLevel(*dialog)) dialog->Window()->setVisible(show);
  }
  for (cSheet* sheet : m_sheets) {
    if (sheet->Window()) sheet->Window()->setVisible(show);
  }
}

void cDialogManager::EnableAll(bool enable) {
  for (cDialog* dialog : m_windows) {
    if (IsTopLevel(*dialog)) dialog->Window()->setEnabled(enable);
  }
  for (cSheet* sheet : m_sheets) {
    if (sheet->Window()) sheet->Window()->setEnabled(enable);
  }
}

bool cDialogManager::TranslateAccelerator(QObject* receiver, QEvent* event) {
  if (event->type() != QEvent::KeyPress || !receiver->isWidgetType()) return false;
  // A key event travels up from the focus widget to its parents; it is
  // translated once, where it starts.
  QWidget* start = QApplication::focusWidget() ? QApplication::focusWidget() : QApplication::activeWindow();
  if (receiver != start) return false;
  const auto* key = static_cast<QKeyEvent*>(event);
  for (cDialog* dialog : m_windows) {
    if (!IsActiveTarget(*dialog)) continue;
    for (const cAccelBinding& binding : dialog->Accels()) {
      if (!HasFocus(*dialog, binding.focusId)) continue;
      if (const int command = MatchAccel(binding.table, key->key(), key->modifiers())) {
        dialog->SendCommand(MakeCommand(command, kNoticeAccelerator), 0);
        return true;
      }
    }
  }
  return false;
}

void cDialogManager::ReapClosedSheets() {
  for (auto it = m_sheets.begin(); it != m_sheets.end();) {
    cSheet* sheet = *it;
    if (!sheet->IsFinished()) {
      ++it;
      continue;
    }
    it = m_sheets.erase(it);
    // The event under way may belong to the sheet's window; the object goes
    // once the event is done.
    QTimer::singleShot(0, qApp, [sheet] { delete sheet; });
  }
}

bool cDialogManager::Filter(QObject* receiver, QEvent* event) {
  if (TranslateAccelerator(receiver, event)) return true;
  ReapClosedSheets();
  return false;
}

bool cDialogManager::eventFilter(QObject* receiver, QEvent* event) { return Filter(receiver, event); }

void ShowAll(cDialogManager& manager, bool show) { manager.ShowAll(show); }

void EnableAll(cDialogManager& manager, bool enable) { manager.EnableAll(enable); }

}  // namespace velmora
