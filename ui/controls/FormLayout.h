#pragma once
#include <QWidget>

#include "ui/controls/Descriptors.h"

namespace velmora {

class cItemMap;

// Builds the widgets of a dialog's table into `client`, row by row: the
// label left, the control with its spin and unit right, rows of one group
// inside one frame, and OK and Cancel at the bottom. Every widget is
// entered in `items` under its id; binding finds it there later.
void LayoutForm(const cForm& form, QWidget& client, cItemMap& items);

}  // namespace velmora
