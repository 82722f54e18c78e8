#pragma once
#include <functional>

#include "ui/conditions/FormRules.h"
#include "ui/framework/RecordDialog.h"

namespace velmora {

// A record dialog whose controls depend on each other: the rows and rules
// of a cRuleForm over the dialog's working copy.
template <class Record>
class cRuleDialog : public cRecordDialog<Record> {
  using Base = cRecordDialog<Record>;

 public:
  // `prepare` brings the copy into the shape the rows bind (a vector given
  // its length, the values of a new record); it runs on the copy that the
  // table is stated over and again each time the dialog opens.
  cRuleDialog(cDialogManager& manager, QWidget* parent, Record& record, const cRuleForm<Record>& form,
              std::function<void(Record&)> prepare = {})
      : Base(manager, parent, record), m_rules(*this, form), m_prepare(std::move(prepare)) {
    if (m_prepare) m_prepare(this->Work());
    this->m_form.rows = form.rows(this->Work());
  }

 protected:
  void PrepareWork(Record& work) override {
    if (m_prepare) m_prepare(work);
  }

  void BindOwnControls() override { m_rules.Bind(this->Work()); }
  void UpdateEnables() override { m_rules.UpdateEnables(this->Work()); }
  void OnDialogCommand(int id, int notice) override { m_rules.OnCommand(this->Work(), id, notice); }

 private:
  cFormRules<Record> m_rules;
  std::function<void(Record&)> m_prepare;
};

}  // namespace velmora
