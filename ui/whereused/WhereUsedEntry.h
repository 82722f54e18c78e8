#pragma once
#include <functional>

#include "project/whereused/UseTarget.h"

class QWidget;

namespace velmora {

class cDialogManager;
class cStageWindow;

// 使用箇所の検索 of the project menu. A double click on a use opens the
// stage it lies in (asking about unsaved work first), brings its cell into
// view or its entry's editor up; the window and its results come back
// with the window of the stage opened.
void InstallWhereUsedWindow(cStageWindow& stage);

// The uses of `target` in the window, modal over `owner`, a window that
// keeps the author to itself. With `leaveOwner`, a use opens: the window
// goes, and once the owner's call has ended `leaveOwner` closes the owner
// as its OK does and the use opens; an owner that stays open (a page
// refused its OK) keeps the author where they are. Without it the uses are
// only listed, and the search of the project menu, where the results
// wait, opens them once the owner has closed.
void ShowUsesOver(cDialogManager& manager, QWidget* owner, const cUseTarget& target,
                  std::function<bool()> leaveOwner = {});

}  // namespace velmora
