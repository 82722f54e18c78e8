#include "ui/controls/EditStr.h"

#include <QTextBlock>
#include <algorithm>

#include "core/Log.h"
#include "core/SystemText.h"

#include "ui/controls/EditWidgets.h"
#include "ui/framework/Commands.h"
#include "ui/framework/QtText.h"

namespace velmora {
namespace {

constexpr int kDefaultBytes = 4096;
constexpr int kDefaultWidth = 1024;
constexpr int kDefaultLines = 32;

// Widgets break lines with "\n"; records keep "\r\n".
std::string ToRecord(const QString& text) {
  std::string cp932 = ToCp932(text);
  std::string record;
  for (char c : cp932) {
    if (c == '\n') record += '\r';
    if (c != '\r') record += c;
  }
  return record;
}

QString FromRecord(const std::string& record) {
  QString text = FromCp932(record);
  text.remove(QLatin1Char('\r'));
  return text;
}

}  // namespace

cTextLimits TextLimitsOf(const cEditStrDesc& desc) {
  cTextLimits limits;
  limits.byteLimit = desc.byteLimit > 0 ? desc.byteLimit : kDefaultBytes;
  limits.width = desc.width > 0 ? desc.width : kDefaultWidth;
  limits.lineLimit = desc.lineLimit > 0 ? desc.lineLimit : kDefaultLines;
  limits.countChars = desc.countChars;
  return limits;
}

cEditStr::cEditStr(cDialog& parent, QWidget* edit, const cEditStrDesc& desc)
    : cControl(eControlKind::EditStr, desc.id, parent, edit),
      m_pLine(dynamic_cast<cLineEdit*>(edit)),
      m_pPlain(dynamic_cast<cPlainEdit*>(edit)),
      m_field(desc.field),
      m_limits(TextLimitsOf(desc)) {
  auto focusOut = [this] { SendCommand(kNoticeKillFocus); };
  if (m_pLine) {
    m_pLine->onFocusOut = focusOut;
    Listen(m_pLine, &QLineEdit::textEdited, [this] { SendCommand(kNoticeEditUpdate); });
  } else if (m_pPlain) {
    m_pPlain->onFocusOut = focusOut;
    Listen(m_pPlain, &QPlainTextEdit::textChanged, [this] {
      if (!m_bSetting) SendCommand(kNoticeEditUpdate);
    });
  }
  Refresh();
}

cEditStr::~cEditStr() {
  if (!Widget()) return;
  if (m_pLine) m_pLine->onFocusOut = nullptr;
  if (m_pPlain) m_pPlain->onFocusOut = nullptr;
}

QString cEditStr::WidgetText() const {
  if (m_pLine) return m_pLine->text();
  return m_pPlain ? m_pPlain->toPlainText() : QString();
}

void cEditStr::SetWidgetText(const QString& text) {
  m_bSetting = true;
  if (m_pLine) m_pLine->setText(text);
  if (m_pPlain) m_pPlain->setPlainText(text);
  m_bSetting = false;
}

int cEditStr::Caret() const {
  if (m_pLine) return m_pLine->cursorPosition();
  return m_pPlain ? m_pPlain->textCursor().position() : 0;
}

void cEditStr::SetCaret(int position) {
  if (m_pLine) m_pLine->setCursorPosition(position);
  if (m_pPlain) {
    QTextCursor cursor = m_pPlain->textCursor();
    cursor.setPosition(std::min(position, static_cast<int>(m_pPlain->toPlainText().size())));
    m_pPlain->setTextCursor(cursor);
  }
}

bool cEditStr::IsBackspaceDown() const {
  if (m_pLine) return m_pLine->IsBackspaceDown() && !m_pLine->hasSelectedText();
  return m_pPlain && m_pPlain->IsBackspaceDown() && !m_pPlain->textCursor().hasSelection();
}

std::string cEditStr::Text() const { return ToRecord(WidgetText()); }

void cEditStr::SetText(const std::string& cp932) {
  int caret = 0;
  m_strPrevious = ReflowText(cp932, m_limits, caret);
  SetWidgetText(FromRecord(m_strPrevious));
}

void cEditStr::Refresh() {
  m_strPrevious = m_field.IsBound() ? m_field.Get() : std::string();
  SetWidgetText(FromRecord(m_strPrevious));
}

void cEditStr::Commit() {
  if (Updating() || !m_field.IsBound()) return;
  int caret = 0;
  m_field.Set(ReflowText(Text(), m_limits, caret));
}

// A character without a CP932 code would reach the record as '?': it is
// taken out again at once, and the author is told which one it was.
bool cEditStr::RefuseUnrepresentable(const QString& shown) {
  const QString codes = CodePointsNotInCp932(shown);
  if (codes.isEmpty()) return false;
  const QString previous = FromRecord(m_strPrevious);
  const int caret = Caret() - static_cast<int>(shown.size() - previous.size());
  SetWidgetText(previous);
  SetCaret(std::max(0, caret));
  ErrorBox(SysText("シフトJISで表せない文字（%s）は入力できません！"), codes.toStdString().c_str());
  return true;
}

void cEditStr::OnChange() {
  const QString shown = WidgetText();
  if (RefuseUnrepresentable(shown)) return;
  const std::string text = ToRecord(shown);
  if (IsBackspaceDown() && JoinPassesWidth(m_strPrevious, text, m_limits)) {
    const int caret = Caret() + 1;
    SetWidgetText(FromRecord(m_strPrevious));
    SetCaret(caret);
    return;
  }
  // The caret travels as a byte offset in record form and back.
  int caret = static_cast<int>(ToRecord(shown.left(Caret())).size());
  const std::string flowed = ReflowText(text, m_limits, caret);
  if (flowed != text) {
    SetWidgetText(FromRecord(flowed));
    SetCaret(static_cast<int>(FromRecord(flowed.substr(0, static_cast<size_t>(caret))).size()));
  }
  m_strPrevious = flowed;
}

}  // namespace velmora
