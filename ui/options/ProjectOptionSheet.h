#pragma once
#include "core/PrjOption.h"
#include "ui/framework/Sheet.h"

namespace velmora {

class cStageWindow;

// "プロジェクトオプション": the pages "全般" and "継承のデフォルト" over a
// working copy of the project's options, default entries included. OK
// writes the copy to data\PrjOption.dat and makes it the options in force;
// Cancel drops it and writes nothing.
class cProjectOptionSheet : public cSheet {
 public:
  cProjectOptionSheet(cDialogManager& manager, QWidget* owner);
  const PrjOption& Work() const { return m_work; }

 protected:
  bool OnApply() override;

 private:
  PrjOption m_work;
};

// Opens the sheet and runs it to its end; nothing opens when the inherit
// defaults can't be edited.
void OpenProjectOptions(cDialogManager& manager, QWidget* owner);
// The menu entry "プロジェクトオプション(&O)" of the stage window opens it.
void InstallProjectOptions(cStageWindow& stage);

}  // namespace velmora
