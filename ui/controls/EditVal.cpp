#include "ui/controls/EditVal.h"

#include <algorithm>

#include "ui/controls/EditWidgets.h"
#include "ui/framework/Commands.h"
#include "ui/framework/Dialog.h"
#include "ui/framework/QtText.h"

namespace velmora {

cEditVal::cEditVal(cDialog& parent, cLineEdit* edit, const cEditValDesc& desc)
    : cControl(eControlKind::EditVal, desc.id, parent, edit),
      m_pEdit(edit),
      m_field(desc.field),
      m_entry(desc.field.Type(), desc.minimum, desc.maximum, desc.step),
      m_nSpinId(desc.spinId) {
  edit->acceptChar = [](unsigned code) { return cNumericEntry::IsAcceptedChar(code); };
  edit->commitToKeys = [](const QString& commit) {
    // Some input methods hand plain keys over as a commit of their own;
    // those are typed as they are. A real composition result keeps only
    // its full-width digits, minus and point, as ASCII keys.
    const bool plainKeys = std::all_of(commit.begin(), commit.end(), [](QChar c) { return c.unicode() < 0x80; });
    if (!plainKeys) return QString::fromStdString(cNumericEntry::FullWidthToKeys(ToCp932(commit)));
    QString keys;
    for (QChar c : commit) {
      if (cNumericEntry::IsAcceptedChar(c.unicode())) keys += c;
    }
    return keys;
  };
  edit->onFocusOut = [this] { SendCommand(kNoticeKillFocus); };
  Listen(edit, &QLineEdit::textEdited, [this] { SendCommand(kNoticeEditUpdate); });
  Refresh();
}

cEditVal::~cEditVal() {
  if (Widget()) m_pEdit->onFocusOut = nullptr;
}

void cEditVal::Enable(bool enable) {
  cControl::Enable(enable);
  if (m_pSpin) m_pSpin->Enable(enable);
}

void cEditVal::SetText(const std::string& text) {
  const QString shown = QString::fromStdString(text);
  if (m_pEdit->text() != shown) m_pEdit->setText(shown);
}

void cEditVal::Show(double value, bool force) {
  if (const std::optional<std::string> text = m_entry.Display(value, force)) SetText(*text);
}

double cEditVal::GetValue() { return m_entry.Parse(ToCp932(m_pEdit->text())); }

void cEditVal::Refresh() {
  m_entry.ClearTyping();
  if (m_field.IsBound()) Show(m_field.Get(), true);
}

void cEditVal::Commit() {
  if (Updating() || !m_field.IsBound()) return;
  m_field.Set(m_entry.Clamp(GetValue()));
}

void cEditVal::OnChange() {
  if (m_bInside) return;
  m_bInside = true;
  const int caret = m_pEdit->cursorPosition();
  const double value = GetValue();
  if (!m_entry.IsEmpty()) Show(value, false);
  m_pEdit->setCursorPosition(std::min(caret, static_cast<int>(m_pEdit->text().size())));
  m_bInside = false;
}

void cEditVal::OnKillFocus() {
  if (m_bInside) return;
  m_bInside = true;
  const double value = GetValue();
  const bool empty = m_entry.IsEmpty();
  m_entry.ClearTyping();
  Show(empty ? m_entry.ValueForEmpty() : value, true);
  m_bInside = false;
}

bool cEditVal::OnNotify(int id, const cNotice& notice) {
  if (m_nSpinId == 0 || id != m_nSpinId || notice.code != kNotifyDeltaPos) return false;
  const double value = GetValue() + notice.delta * m_entry.Step();
  m_entry.ClearTyping();
  Show(value, true);
  // The text changed as if typed, so the dialog hears of it the same way.
  SendCommand(kNoticeEditUpdate);
  return true;
}

void cEditVal::SetRange(double minimum, double maximum) {
  m_entry.SetRange(minimum, maximum);
  if (m_pSpin) m_pSpin->SetRange(minimum, maximum);
  Show(GetValue(), true);
}

cSpin::cSpin(cDialog& parent, QWidget* buttons, int id, int buddyId, double minimum, double maximum)
    : cControl(eControlKind::Spin, id, parent, buttons), m_nBuddyId(buddyId), m_minimum(minimum), m_maximum(maximum) {
  if (auto* spin = dynamic_cast<cSpinButtons*>(buttons)) {
    spin->onStep = [this](int delta) { Parent().Notify(Id(), cNotice{kNotifyDeltaPos, delta}); };
  }
}

cSpin::~cSpin() {
  if (auto* spin = dynamic_cast<cSpinButtons*>(Widget())) spin->onStep = nullptr;
}

void cSpin::SetRange(double minimum, double maximum) {
  m_minimum = minimum;
  m_maximum = maximum;
}

}  // namespace velmora
