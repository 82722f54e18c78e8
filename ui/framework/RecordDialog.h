#pragma once
#include "ui/framework/Dialog.h"

namespace velmora {

// A dialog that edits one record and gives it back. Its controls are bound
// to a working copy, and the record takes the copy only on an OK that
// Validate accepts. Cancel, also after a refused OK, leaves the record as
// it was when the dialog opened, whatever the controls wrote into the copy
// or the dialog repaired there (a clamped value, a combo forced into its
// list, a parameter vector sized to its kind). So the dialog may commit
// its controls whenever its rules need the values (ApplyAll in
// UpdateEnables, a combo refilled for the value of another): only the copy
// is written.
//
// The copy is made with the object, so the constructor states its table
// over the fields of Work(); each opening takes it afresh from the record
// and then runs PrepareWork. Bound addresses must outlive that: members of
// Work() do, and so do the elements of a vector in it when the vector is
// given its length before the table is stated and again in PrepareWork.
template <class Record>
class cRecordDialog : public cDialog {
 public:
  cRecordDialog(cDialogManager& manager, QWidget* parent, Record& record)
      : cDialog(manager, parent), m_record(record), m_work(record) {}

  // The record as the opener holds it; changed only by an accepted OK.
  const Record& Original() const { return m_record; }

  void OnInitDialog() override {
    m_work = m_record;
    PrepareWork(m_work);
    cDialog::OnInitDialog();
  }

 protected:
  // The copy that the controls edit.
  Record& Work() { return m_work; }
  // What opening does to the copy before the controls show it.
  virtual void PrepareWork(Record& /*work*/) {}
  // After the controls were committed to the copy at OK: false keeps the
  // dialog open and the record untouched. Messages and questions go
  // through Prompt().
  virtual bool Validate(const Record& /*work*/) { return true; }

  bool OnApply() final {
    if (!Validate(m_work)) return false;
    m_record = m_work;
    return true;
  }

 private:
  Record& m_record;
  Record m_work;
};

}  // namespace velmora
