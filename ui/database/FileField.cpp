#include "ui/database/FileField.h"

#include "core/Prompt.h"
#include "ui/database/DbListPage.h"
#include "ui/framework/QtPrompt.h"

namespace velmora {

std::vector<cFormRow> FileFieldRows(const cFileFieldIds& ids, const char* pathLabel, int32_t* sameAsFile,
                                    std::string* path) {
  std::vector<cFormRow> rows;
  if (sameAsFile) rows.push_back({nullptr, cCheckDesc{ids.sameAsFile, sameAsFile, "ファイル名と同じ"}});
  rows.push_back({pathLabel, EditStrLine(ids.path, path, static_cast<int>(kFilePathLimit))});
  rows.push_back({nullptr, cButtonDesc{ids.browse, "参照"}, nullptr, nullptr, true});
  return rows;
}

bool BrowseFileField(cDialog& dialog, eFileField field, std::string& path) {
  std::string chosen;
  if (!Prompt().OpenFile(OwnerOf(dialog.Window()), FileFieldPrompt(field), chosen)) return false;
  return StoredFileChoice(chosen, path);
}

void FollowFileName(int32_t sameAsFile, const std::string& path, std::string& name) {
  if (sameAsFile) name = NameFromPath(path, kDbNameLimit);
}

}  // namespace velmora
