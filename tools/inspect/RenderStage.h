#pragma once
#include <string>
#include <vector>

namespace velmora::inspect {

// `render STAGE OUT.png [x y w h]`: the stage as the stage window shows it,
// from the cell (x, y) over w x h cells (the whole stage by default), drawn
// with the pictures and database of the project in the current directory.
int RenderStage(const std::vector<std::string>& args, std::string& err);

}  // namespace velmora::inspect
