#pragma once
#include <string>
#include <vector>

#include "ui/database/DbListPage.h"
#include "ui/database/FileField.h"

namespace velmora {

enum eDbFileIds {
  kIdDbSameAsFile = kIdDbPageOwn,
  kIdDbPath,
  kIdDbBrowse,
  kIdDbPath2,
  kIdDbBrowse2,
  kIdDbFileOwn,  // the page's own ids start here
};

// A page whose entries name files: each path with its "参照", and the
// check "ファイル名と同じ", which closes the name edit and gives the name
// the first file's name whenever a field changes.
template <class Element>
class cDbFilePage : public cDbListPage<Element> {
 public:
  struct cPathField {
    std::string Element::*member;
    eFileField field;
    const char* label;  // UTF-8
  };

  cDbFilePage(cDialogManager& manager, std::vector<Element>& list, const cListRule& rule,
              std::vector<cPathField> paths)
      : cDbListPage<Element>(manager, list, rule), m_paths(std::move(paths)) {}

 protected:
  // The name, the check and the paths, for the page's table.
  std::vector<cFormRow> FileRows() {
    std::vector<cFormRow> rows = this->NameRows();
    for (size_t i = 0; i < m_paths.size(); ++i) {
      const cFileFieldIds ids = IdsOf(i);
      int32_t* sameAsFile = i == 0 ? &this->Work().m_bNameFromFile : nullptr;
      for (cFormRow& row : FileFieldRows(ids, m_paths[i].label, sameAsFile, &(this->Work().*m_paths[i].member))) {
        rows.push_back(std::move(row));
      }
    }
    return rows;
  }

  void OnFieldChanged(int /*id*/) override { FollowName(); }

  bool OnPageCommand(int id) override {
    for (size_t i = 0; i < m_paths.size(); ++i) {
      if (id != IdsOf(i).browse) continue;
      if (BrowseFileField(*this, m_paths[i].field, this->Work().*m_paths[i].member)) {
        FollowName();
        this->StoreAndShow();
      }
      return true;
    }
    return false;
  }

  void UpdateEnables() override { this->EnableControl(kIdDbName, !this->Work().m_bNameFromFile); }

 private:
  static cFileFieldIds IdsOf(size_t index) {
    return index == 0 ? cFileFieldIds{kIdDbSameAsFile, kIdDbPath, kIdDbBrowse}
                      : cFileFieldIds{0, kIdDbPath2, kIdDbBrowse2};
  }

  void FollowName() {
    Element& work = this->Work();
    if (m_paths.empty()) return;
    FollowFileName(work.m_bNameFromFile, work.*m_paths.front().member, work.m_strName);
    if (cControl* name = this->FindControl(kIdDbName)) name->Refresh();
  }

  std::vector<cPathField> m_paths;
};

}  // namespace velmora
