#pragma once
#include <string>

namespace velmora {

// Projects come from Windows: a stored path uses backslashes and may differ
// in case from what is on disk. This is the only place that turns a stored
// path into one the host can open. Each component that exists on disk under
// some case is taken in that case; the first missing component and all
// behind it keep the stored case, so new files are created as named.
std::string HostPath(const std::string& stored);

// The reverse, for paths chosen in a host dialog that a record will store:
// slashes become backslashes.
std::string StoredPath(const std::string& host);

}  // namespace velmora
