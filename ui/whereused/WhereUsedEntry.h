#pragma once

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

// The uses of `target` in the window, modal over `owner` (the database
// window, which keeps the author to itself): a use is opened from the
// search of the project menu once that window has closed, where the
// results wait.
void ShowUsesOver(cDialogManager& manager, QWidget* owner, const cUseTarget& target);

}  // namespace velmora
