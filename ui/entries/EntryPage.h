#pragma once
#include <memory>
#include <vector>

#include "core/RecordListEdit.h"
#include "objects/Cond.h"
#include "stage/EntryEditing.h"
#include "ui/conditions/FormRules.h"
#include "ui/entries/EditorStart.h"
#include "ui/framework/Dialog.h"
#include "graphics/Surface.h"

namespace velmora {

template <class Entry>
using cEntryRules = cRuleForm<cEntryWork<Entry>>;

// One inheritable group on a page: its box "継承→", bound to the group's
// byte, and the controls that the box takes out of the author's hands
// while it is set.
struct cInheritGroupIds {
  int group;
  int box;
  std::vector<int> ids;
};

// One page of an entry editor: the rows over the editor's working copy
// with the rules between them, and the inherit groups it shows.
template <class Entry>
struct cEntryPageForm {
  cEntryRules<Entry> rules;
  std::vector<cInheritGroupIds> groups;
};

// What a page asks of the editor it is part of.
class cEntryEditorHost {
 public:
  virtual ~cEntryEditorHost() = default;
  // "←" and "→": the entry `step` places along the palette.
  virtual void ShowNeighbour(int step) = 0;
  // The author set a box or chose another source: every page's fields are
  // stored, the copy takes its inherited groups, and every page shows it.
  virtual void InheritChanged() = 0;
  // The page came to the front.
  virtual void PageShown(const cDialog& page) = 0;
};

// A page over the working copy that all pages of the editor share. Fields
// reach the copy as the author changes them; the editor stores the copy.
template <class Entry>
class cEntryPage : public cDialog {
 public:
  cEntryPage(cDialogManager& manager, cEntryWork<Entry>& work, const cEntryPageForm<Entry>& form,
             cEntryEditorHost& host);

  // Shows the working copy anew, after it took another entry or groups of
  // its source.
  virtual void Reload();
  // The picture of the entry's graphic, drawn anew by the idle step after
  // a change.
  void RepaintPreview();
  // Selects the rows of `start` in the page's lists when the page holds
  // them; true then, and the editor brings the page to the front. This
  // page holds the entry's own conditions where it shows them.
  virtual bool ShowStart(const cEditorStart& start);

 protected:
  void BuildClient(QWidget& client) override;
  void BindOwnControls() override;
  void UpdateEnables() override;
  void OnDialogCommand(int id, int notice) override;
  void OnSetActive() override;

  cEntryWork<Entry>& Work() { return m_work; }
  cEntryEditorHost& Host() { return m_host; }

 private:
  bool IsInheritChoice(int id) const;
  // "一覧" of the graphic or the animation set; false for another id.
  bool PickFromList(int id);
  void RequestPreview();

  cEntryWork<Entry>& m_work;
  const cEntryPageForm<Entry>& m_page;
  cEntryEditorHost& m_host;
  cFormRules<cEntryWork<Entry>> m_rules;
  // 出現条件, on the page that shows them.
  cRecordListEdit<cEdCond> m_conds;
  cSurface m_cell;
  bool m_bPreviewWanted = false;
};

// A page as the editor makes it.
template <class Entry>
using cEntryPageMaker = std::unique_ptr<cDialog> (*)(cDialogManager&, cEntryWork<Entry>&, cEntryEditorHost&);

template <class Page, class Entry, const cEntryPageForm<Entry>& Form>
std::unique_ptr<cDialog> MakeEntryPage(cDialogManager& manager, cEntryWork<Entry>& work, cEntryEditorHost& host) {
  return std::make_unique<Page>(manager, work, Form, host);
}

}  // namespace velmora
