#pragma once
#include <QObject>
#include <list>

#include "core/SheetRate.h"

class QEvent;

namespace velmora {

class cDialog;
class cSheet;

// The process's one register of open windows. It offers every event of the
// application to the windows' accelerator tables, tears down sheets that the
// author closed, and can hide or disable all windows at once.
class cDialogManager : public QObject {
 public:
  cDialogManager();
  ~cDialogManager() override;

  void Add(cDialog* dialog);
  // False, after the error box, when the window wasn't entered.
  bool Remove(cDialog* dialog);
  void AddSheet(cSheet* sheet);
  bool RemoveSheet(cSheet* sheet);
  bool Contains(const cDialog* dialog) const;
  const std::list<cDialog*>& Windows() const { return m_windows; }
  const std::list<cSheet*>& Sheets() const { return m_sheets; }

  void ShowAll(bool show);
  void EnableAll(bool enable);
  // The rate that sheets scale their pages by, as start-up measured or
  // restored it.
  void SetSheetRate(const cSheetRate& rate) { m_sheetRate = rate; }
  const cSheetRate& SheetRate() const { return m_sheetRate; }
  // The filter of the main loop; true when the event was consumed.
  bool Filter(QObject* receiver, QEvent* event);

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  bool TranslateAccelerator(QObject* receiver, QEvent* event);
  void ReapClosedSheets();

  std::list<cDialog*> m_windows;
  std::list<cSheet*> m_sheets;
  cSheetRate m_sheetRate;
};

// Shows or hides, enables or disables every open window and sheet.
void ShowAll(cDialogManager& manager, bool show);
void EnableAll(cDialogManager& manager, bool enable);

}  // namespace velmora
