#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "project/FileFieldRules.h"
#include "ui/controls/Descriptors.h"

namespace velmora {

class cDialog;

// The file field of a database page: the path with its "参照", and the
// check "ファイル名と同じ" that hands the entry's name over to the file.
struct cFileFieldIds {
  int sameAsFile = 0;  // 0: the field has no such check
  int path = 0;
  int browse = 0;
};

std::vector<cFormRow> FileFieldRows(const cFileFieldIds& ids, const char* pathLabel, int32_t* sameAsFile,
                                    std::string* path);

// "参照": true when `path` took the file the author chose, stored
// relative to the project; a file outside it leaves the path as it was.
bool BrowseFileField(cDialog& dialog, eFileField field, std::string& path);

// While the check is on, the name is the file's name without folder and
// extension.
void FollowFileName(int32_t sameAsFile, const std::string& path, std::string& name);

}  // namespace velmora
