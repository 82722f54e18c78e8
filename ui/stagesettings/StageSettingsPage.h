#pragma once
#include <memory>

#include "stage/Stage.h"
#include "ui/framework/Dialog.h"

namespace velmora {

// A page of the stage settings: a table bound to the fields of the edit
// stage itself, which take the controls' values only at the sheet's OK.
// Rules between the controls therefore read the controls, not the stage.
class cStageSettingsPage : public cDialog {
 public:
  cStageSettingsPage(cDialogManager& manager, cStage& stage, const char* logName);

 protected:
  cStage& Stage() const { return m_stage; }
  // The state a check box shows, committed or not.
  // The value a numeric edit shows, within its limits; 0 without one.
  double ShownValue(int id) const;
  // The row a combo box shows; -1 without one.
  int ShownRow(int id) const;

  // The rows the pages are made of.
  // A numeric edit with its spin buttons, stepping by `step`.
  static cEditValDesc SpinEdit(int id, cValueField field, double minimum, double maximum, double step = 1);
  static cFormRow CheckRow(int id, cValueField field, const char* text);
  static cFormRow NoteRow(const char* text);

 private:
  cStage& m_stage;
};

std::unique_ptr<cDialog> MakeBasicPage(cDialogManager& manager, cStage& stage);
std::unique_ptr<cDialog> MakeAdvancedPage(cDialogManager& manager, cStage& stage);
std::unique_ptr<cDialog> MakeHitBoxPage(cDialogManager& manager, cStage& stage);

}  // namespace velmora
