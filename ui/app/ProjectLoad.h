#pragma once

namespace velmora {

// Reads the project's data files and the pictures the editor draws with,
// in the order the editor needs them; false after the failure was told.
bool LoadProjectForEditor();

}  // namespace velmora
