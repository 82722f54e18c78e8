#pragma once
#include <string>

#include "core/Prompt.h"

namespace velmora {

// Makes the editor's and the project's folders; a failure shows only when a
// file inside is first opened.
void CreateProjectFolders();

// Turns `default\` into a first `data\` after asking the author.
bool CreateDefaultData(OwnerWindow owner);

// Replaces the extension of `path` by `extension` and finds the file with
// the highest three-digit suffix ("name.ext_NNN").
bool FindVersioned(std::string& out, const std::string& path, const std::string& extension);

// The default stage: kept if `data\stg4\` has one, else copied from
// `default\stg4\` under the same suffix, never over an existing file.
void EnsureDefaultStage();

bool CopyFolder(OwnerWindow owner, const std::string& destination, const std::string& source);
bool DeleteFolder(const std::string& path);

// One generation of backups: each destroys the one before it first.
bool BackupData(OwnerWindow owner);
bool BackupEditData(OwnerWindow owner);

}  // namespace velmora
