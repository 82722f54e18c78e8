#pragma once
#include <cstdio>
#include <string>
#include <vector>

namespace velmora {

// File operations on stored (Windows-style, relative to the project) paths.
// Each turns its path into a host path first, so callers never handle
// separators or case.

struct cDirEntry {
  std::string name;  // as on disk
  bool isDirectory = false;
};

std::FILE* OpenFile(const std::string& stored, const char* mode);
bool IsDirectory(const std::string& stored);
bool FileExists(const std::string& stored);  // a regular file
bool IsDeviceOrPipe(const std::string& stored);  // there, and neither a regular file nor a folder
bool MakeDirectory(const std::string& stored);
bool RemoveEmptyDirectory(const std::string& stored);
bool RemoveFile(const std::string& stored);
// Replaces an existing target, like MoveFileEx with MOVEFILE_REPLACE_EXISTING.
bool MoveFileReplacing(const std::string& from, const std::string& to);
// With `overwrite` false an existing target is left alone and the call fails.
bool CopyFileTo(const std::string& from, const std::string& to, bool overwrite);
// A second name for the same file (a hard link): free, where a copy of a
// large stage would take seconds. Fails across file systems.
bool LinkFileTo(const std::string& from, const std::string& to);
// Copies a folder with all it holds to `to`, which must not exist yet;
// every file copied is on the disk when the call returns.
bool CopyTree(const std::string& from, const std::string& to);
std::vector<cDirEntry> ListDirectory(const std::string& stored);
std::string FullHostPath(const std::string& stored);
long long FileSize(const std::string& stored);  // -1 when missing

// When a file was last written and its size: what tells that it changed
// since it was last read. A missing file has the empty stamp.
struct cFileStamp {
  long long modifiedNs = 0;
  long long size = -1;
  bool operator==(const cFileStamp&) const = default;
};
cFileStamp FileStampOf(const std::string& stored);

}  // namespace velmora
