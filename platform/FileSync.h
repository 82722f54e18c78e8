#pragma once
#include <string>

namespace velmora {

// Forces a written file's bytes to the disk, so that a rename that follows
// can never make a file whose data was still only in memory the current one.
bool SyncFile(const std::string& stored);

// Forces the folder that holds `stored` to the disk, so that a rename into
// it survives a power loss as well as a killed process.
bool SyncFolderOf(const std::string& stored);

}  // namespace velmora
