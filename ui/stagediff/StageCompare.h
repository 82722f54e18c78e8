#pragma once

namespace velmora {

class cStageWindow;

// 比較 of the stage menu: the author chooses another version of a stage
// file, and the cells where it differs from the stage being edited are
// framed in the view until the marks are cleared or another stage comes.
void InstallStageCompare(cStageWindow& stage);

}  // namespace velmora
