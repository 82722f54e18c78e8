#pragma once
#include <string>

namespace velmora::inspect {

// `behaviour FILE [ENTRY]`: the flows of every character and the commands
// of every item of the palette lists in FILE, as the editor's lists show
// them, in UTF-8. ENTRY "chara:N" or "item:N" keeps one entry.
int Behaviour(const std::string& path, const std::string& entry, std::string& out, std::string& err);

}  // namespace velmora::inspect
