#pragma once
#include <vector>

#include "objects/ObjectList.h"
#include "ui/entries/EditorStart.h"
#include "ui/entries/EntryPage.h"
#include "ui/framework/Sheet.h"

namespace velmora {

// The pages of one kind's editor, in tab order.
template <class Entry>
struct cEditorPages {
  const char* title;  // UTF-8
  struct cPage {
    cEntryPageMaker<Entry> make;
    const char* tab;  // UTF-8
  };
  std::vector<cPage> pages;
};

const cEditorPages<cEdBlock>& EditorPages(const cEdBlock*);
const cEditorPages<cEdChara>& EditorPages(const cEdChara*);
const cEditorPages<cEdItem>& EditorPages(const cEdItem*);

// The message for an entry that FitsItsEditor refuses.
void TellEntryOverLimit();

// An open entry editor, whatever its kind.
class cEntryEditorBase : public cSheet, public cEntryEditorHost {
 public:
  using cSheet::cSheet;
  // The idle step's part: the page in front draws what changed.
  virtual void RepaintShownPage() = 0;
  virtual const cEditPlace& Place() const = 0;
};

// "ブロックデータ", "キャラデータ" or "アイテムデータ": the kind's pages over a
// copy of the entry that the edit state points at. OK writes the copy back
// by the edit target; Cancel drops it. "←" and "→" write it back the same
// way and go on with the next entry of the palette.
template <class Entry>
class cEntryEditor : public cEntryEditorBase {
 public:
  // The edit state must point at the entry of `place` (PointEditAt).
  cEntryEditor(cDialogManager& manager, QWidget* owner, const cEditPlace& place, bool modal,
               const cEditorStart& start = {});
  ~cEntryEditor() override;

  void ShowNeighbour(int step) override;
  void InheritChanged() override;
  void PageShown(const cDialog& page) override;
  void RepaintShownPage() override;
  const cEditPlace& Place() const override { return m_work.place; }
  const cEntryWork<Entry>& Work() const { return m_work; }

 protected:
  bool OnApply() override;
  void OnPagesBuilt() override;

 private:
  void ReloadPages();
  cEntryPage<Entry>* EntryPage(int index) const;

  cEntryWork<Entry> m_work;
  eObjectContext m_contextBefore;
  cEditorStart m_start;
};

}  // namespace velmora
