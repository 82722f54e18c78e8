#pragma once
#include <QWidget>

#include "project/DatabaseWork.h"
#include "ui/framework/Sheet.h"

namespace velmora {

class cStageWindow;

// The property sheet "データベース": eleven pages, one per list, over a copy
// of the lists that OK applies and writes and Cancel forgets.
class cDatabaseSheet : public cSheet {
 public:
  cDatabaseSheet(cDialogManager& manager, QWidget* owner);
  ~cDatabaseSheet() override;
  cDatabaseWork& Work() { return m_work; }

 protected:
  bool OnApply() override;

 private:
  cDatabaseWork m_work;
};

// Gives the stage window's "データベース(&D)" its handler: the other windows
// go out of sight and out of reach while the sheet is open, and come back
// when it closes, after an OK with the stage's references checked against
// the new lists.
void InstallDatabaseWindow(cStageWindow& stage);

// OK of the open sheet, as its button: every page applies, the lists are
// written and the sheet closes. False, with the sheet open, when a page
// refuses or no sheet is open.
bool FinishDatabaseSheet();

// The sheet that is open, or null; for tests and the idle pacing.
cDatabaseSheet* OpenDatabaseSheet();

}  // namespace velmora
