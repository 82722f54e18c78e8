#include "ui/system/SystemPage.h"

#include "ui/controls/Button.h"
#include "ui/system/SystemPageIds.h"

namespace velmora {

cSystemPage::cSystemPage(cDialogManager& manager, cEdSystem& work, const char* logName)
    : cDialog(manager, nullptr), m_work(work) {
  SetLogName(logName);
  m_form.okCancel = false;  // the sheet's
}

void cSystemPage::SetRows(std::vector<cFormRow> rows) { m_form.rows = {FormScroll(std::move(rows))}; }

void cSystemPage::ClearCheck(int id) {
  if (cCheck* check = FindControlOf<cCheck>(id)) check->SetChecked(false);
}

cEditValDesc cSystemPage::SpinEdit(int id, cValueField field, int minimum, int maximum) {
  return cEditValDesc{id, field, static_cast<double>(minimum), static_cast<double>(maximum), id + kSystemSpinOffset, 1};
}

cEditStrDesc cSystemPage::CharsEdit(int id, cTextField field, int chars) {
  cEditStrDesc desc = EditStrLine(id, field, chars, true);
  desc.byteLimit = 2 * chars;
  return desc;
}

cFormRow cSystemPage::CheckRow(int id, cValueField field, const char* text) {
  return {nullptr, cCheckDesc{id, field, text, true}};
}

cFormRow cSystemPage::NoteRow(const char* text) { return {nullptr, cStaticDesc{0, text}}; }

}  // namespace velmora
