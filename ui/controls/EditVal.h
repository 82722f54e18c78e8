#pragma once
#include "ui/controls/Control.h"
#include "ui/controls/Descriptors.h"
#include "ui/controls/NumericEntry.h"

namespace velmora {

class cLineEdit;
class cSpin;

// A numeric edit bound to a field of any numeric type, with an optional
// spin. Typing is repaired, not refused: foreign characters are dropped and
// values clamped, and the field lies within the limits after each Commit.
class cEditVal : public cControl {
 public:
  cEditVal(cDialog& parent, cLineEdit* edit, const cEditValDesc& desc);
  ~cEditVal() override;

  void Enable(bool enable) override;
  void Refresh() override;
  void Commit() override;
  void OnChange() override;
  bool OnNotify(int id, const cNotice& notice) override;
  void OnKillFocus() override;

  void SetRange(double minimum, double maximum);
  double GetValue();
  // Shows a value without touching the field.
  void SetValue(double value) { Show(value, true); }
  const cNumericEntry& Entry() const { return m_entry; }
  void SetSpin(cSpin* spin) { m_pSpin = spin; }

 private:
  void Show(double value, bool force);
  void SetText(const std::string& text);

  cLineEdit* m_pEdit;
  cValueField m_field;
  cNumericEntry m_entry;
  int m_nSpinId;
  cSpin* m_pSpin = nullptr;
  bool m_bInside = false;  // re-entry guard of the change handlers
};

// The spin beside a numeric edit or slider: it reports steps, and the edit
// does the arithmetic.
class cSpin : public cControl {
 public:
  cSpin(cDialog& parent, QWidget* buttons, int id, int buddyId, double minimum, double maximum);
  ~cSpin() override;
  void SetRange(double minimum, double maximum);
  int BuddyId() const { return m_nBuddyId; }
  double Minimum() const { return m_minimum; }
  double Maximum() const { return m_maximum; }

 private:
  int m_nBuddyId;
  double m_minimum;
  double m_maximum;
};

}  // namespace velmora
