#pragma once
#include "project/SystemRecord.h"
#include "ui/framework/Dialog.h"

namespace velmora {

// A page of the system window: a table bound to the sheet's working copy
// of the system record, which the record takes only at the sheet's OK.
class cSystemPage : public cDialog {
 public:
  cSystemPage(cDialogManager& manager, cEdSystem& work, const char* logName);

 protected:
  cEdSystem& Work() const { return m_work; }
  // The page's table. Its rows scroll where a small screen can't show the
  // sheet whole.
  void SetRows(std::vector<cFormRow> rows);
  // The state a check box shows, committed or not.
  // Clears a check box as the author would; its field follows at OK.
  void ClearCheck(int id);

  // The rows the pages are made of.
  // A numeric edit with its spin buttons.
  static cEditValDesc SpinEdit(int id, cValueField field, int minimum, int maximum);
  // One line of at most `chars` characters, a full-width one counting as one.
  static cEditStrDesc CharsEdit(int id, cTextField field, int chars);
  // A check box whose long text wraps at the page's width.
  static cFormRow CheckRow(int id, cValueField field, const char* text);
  // A fixed text across the page.
  static cFormRow NoteRow(const char* text);

 private:
  cEdSystem& m_work;
};

}  // namespace velmora
