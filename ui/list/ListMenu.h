#pragma once
#include <vector>

#include "ui/framework/WindowParts.h"

namespace velmora {

// The pop-up menu of a list of the given number and family: its menu ids
// with their texts, in the order the commands stand in the menu.
std::vector<cMenuItem> ListPopupMenu(int listNumber, int family);

}  // namespace velmora
