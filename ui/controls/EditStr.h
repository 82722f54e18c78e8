#pragma once
#include <string>

#include "ui/controls/Control.h"
#include "ui/controls/Descriptors.h"
#include "ui/controls/TextReflow.h"

namespace velmora {

class cLineEdit;
class cPlainEdit;

// The limits a descriptor states, with the defaults for those it leaves 0.
cTextLimits TextLimitsOf(const cEditStrDesc& desc);

// A string edit bound to a CP932 field. A box with one line is a line edit,
// a taller one a text area; in both, typing past the width reflows the
// text instead of being refused.
class cEditStr : public cControl {
 public:
  cEditStr(cDialog& parent, QWidget* edit, const cEditStrDesc& desc);
  ~cEditStr() override;

  void Refresh() override;
  void Commit() override;
  void OnChange() override;

  // The text in record form: CP932 with "\r\n" between lines.
  std::string Text() const;
  // Shows `cp932` as if the author had typed it, within the limits; the
  // field takes it at the next Commit.
  void SetText(const std::string& cp932);
  const cTextLimits& Limits() const { return m_limits; }

 private:
  QString WidgetText() const;
  void SetWidgetText(const QString& text);
  int Caret() const;
  void SetCaret(int position);
  bool IsBackspaceDown() const;
  bool RefuseUnrepresentable(const QString& shown);

  cLineEdit* m_pLine = nullptr;
  cPlainEdit* m_pPlain = nullptr;
  cTextField m_field;
  cTextLimits m_limits;
  std::string m_strPrevious;  // the text before the last change, record form
  bool m_bSetting = false;    // the control itself is writing the widget
};

}  // namespace velmora
