#pragma once

namespace velmora {

class cStageWindow;

// 使用箇所の検索 of the project menu. A double click on a use opens the
// stage it lies in (asking about unsaved work first), brings its cell into
// view or its entry's editor up; the window and its results come back
// with the window of the stage opened.
void InstallWhereUsedWindow(cStageWindow& stage);

}  // namespace velmora
