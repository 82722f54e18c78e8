#pragma once
#include <functional>

#include "ui/framework/Dialog.h"
#include "ui/whereused/WhereUsedSearch.h"

namespace velmora {

// The window "使用箇所の検索": a thing to look for, the list of its uses
// across the project, and a double click that takes the author to one.
class cWhereUsedWindow : public cDialog {
 public:
  using cOpenUse = std::function<void(const cFoundUse& found)>;

  // Without `open` the uses are only listed.
  cWhereUsedWindow(cDialogManager& manager, QWidget* parent, cWhereUsedSearch& search, cOpenUse open);
  bool Open();
  // Searches for `target` at once, as the places that know what they
  // name ask.
  void SearchFor(const cUseTarget& target);

 protected:
  void OnDialogCommand(int id, int notice) override;
  void BindOwnControls() override;
  void OnInitDialog() override;

 private:
  void Search();
  void ShowStatus();

  cWhereUsedSearch& m_search;
  cOpenUse m_open;
};

}  // namespace velmora
