#pragma once

namespace velmora {

class EditConfig;

// What the editor keeps when it closes: the stage edited last and the rest
// of its own state in e_data\EditConfig.dat, and the names of the common
// variables in data\GValInfo.dat. Nothing is written when the start never
// finished or saving is forbidden (after a stop), so such an editor leaves
// every file as it was. False when nothing was written or a file failed.
bool SaveOnExit(EditConfig& config, bool started);

}  // namespace velmora
