#pragma once
#include <string>

namespace velmora {

// Forces a written file's bytes to the disk, so that a rename that follows
// can never make a file whose data was still only in memory the current one.
bool SyncFile(const std::string& stored);

}  // namespace velmora
