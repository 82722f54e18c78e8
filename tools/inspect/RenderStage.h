#pragma once
#include <string>
#include <vector>

#include "graphics/CellFrame.h"
#include "stage/Stage.h"

namespace velmora::inspect {

// `render STAGE OUT.png [x y w h]`: the stage as the stage window shows it,
// from the cell (x, y) over w x h cells (the whole stage by default), drawn
// with the pictures and database of the project in the current directory.
int RenderStage(const std::vector<std::string>& args, std::string& err);

// The whole of a loaded stage drawn the same way, with `marks` framed, to
// the PNG at `outPath`; 0, or 1 with the reason in `err`.
int WriteStagePng(const cStage& stage, const std::vector<cCellFrame>& marks, const std::string& outPath,
                  std::string& err);

}  // namespace velmora::inspect
