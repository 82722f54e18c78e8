#pragma once
#include <string>

#include "project/SystemRecord.h"
#include "ui/framework/Sheet.h"

namespace velmora {

class cStageWindow;

// "システムの設定": the ten pages of the game's settings over a working
// copy of the system record. OK stores the pages twice over, then saves the
// copy as data\System.dat and makes it the record; Cancel drops the copy
// and writes nothing.
class cSystemSheet : public cSheet {
 public:
  cSystemSheet(cDialogManager& manager, QWidget* owner);
  const cEdSystem& Work() const { return m_work; }

 protected:
  bool OnApply() override;

 private:
  cEdSystem m_work;
};

// Opens the window and runs it to its end; with `startControl` on the
// page that holds that control.
void OpenSystemWindow(cDialogManager& manager, QWidget* owner, int startControl = 0);
// The control of a field as the search of uses names it ("BGM" and the
// screen, CP932); 0 for a label no page shows.
int SystemControlOfField(const std::string& label);
// The menu entry "システム(&S)" of the stage window opens it.
void InstallSystemWindow(cStageWindow& stage);

}  // namespace velmora
