#pragma once

namespace velmora {

// While a stage file loads on its worker, the user-interface thread keeps
// the editor's windows painted and drops what the author types or clicks
// into them; closing a window or quitting the application ends the load.
void InstallLoadMessageDropper();

}  // namespace velmora
