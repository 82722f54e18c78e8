#include "ui/entries/EntryEditor.h"

#include <algorithm>

#include "core/EditConfig.h"
#include "core/Log.h"
#include "core/SystemText.h"
#include "ui/framework/QtText.h"

namespace velmora {
namespace {

eObjectContext ContextOf(const cEdBlock*) { return eObjectContext::BlockEditor; }
eObjectContext ContextOf(const cEdChara*) { return eObjectContext::CharaEditor; }
eObjectContext ContextOf(const cEdItem*) { return eObjectContext::ItemEditor; }

template <class Entry>
const cEditorPages<Entry>& PagesOf() {
  return EditorPages(static_cast<const Entry*>(nullptr));
}

}  // namespace

void TellEntryOverLimit() {
  ErrorBoxText(SysText("リストの数が編集できる上限を超えているため、このデータは開けません！"));
}

template <class Entry>
cEntryEditor<Entry>::cEntryEditor(cDialogManager& manager, QWidget* owner, const cEditPlace& place, bool modal,
                                  const cEditorStart& start)
    : cEntryEditorBase(manager, owner, Ui(PagesOf<Entry>().title), modal),
      m_contextBefore(CurrentObjectContext()),
      m_start(start) {
  SetObjectContext(ContextOf(static_cast<const Entry*>(nullptr)));
  if (const Entry* entry = EditedEntry<Entry>()) LoadEntryWork(m_work, *entry, place);
  const auto& pages = PagesOf<Entry>().pages;
  for (const auto& page : pages) AddPage(page.make(manager, m_work, *this), Ui(page.tab));
  const int shown = EditorConfig().m_anEditPage[kEntryKindOf<Entry>];
  SetStartPage(std::clamp(shown, 0, static_cast<int>(pages.size()) - 1));
  SetStartControl(start.field);
}

template <class Entry>
cEntryEditor<Entry>::~cEntryEditor() {
  SetObjectContext(m_contextBefore);
}

template <class Entry>
cEntryPage<Entry>* cEntryEditor<Entry>::EntryPage(int index) const {
  return dynamic_cast<cEntryPage<Entry>*>(Page(index));
}

template <class Entry>
bool cEntryEditor<Entry>::OnApply() {
  if (StoreEditedEntry(m_work.place, FinishedEntry(m_work))) return true;
  ErrorBoxText(SysText("編集中のデータが見つからないため、保存できません！"));
  return false;
}

template <class Entry>
void cEntryEditor<Entry>::OnPagesBuilt() {
  if (m_start.field != 0) return;
  for (int i = 0; i < PageCount(); ++i) {
    cEntryPage<Entry>* page = EntryPage(i);
    if (!page || !page->ShowStart(m_start)) continue;
    ShowPage(i);
    return;
  }
}

template <class Entry>
void cEntryEditor<Entry>::ShowNeighbour(int step) {
  cEditPlace next = m_work.place;
  next.index = NeighbourIndex(next, step);
  if (next.index < 0 || !ApplyPages() || !PointEditAt<Entry>(next)) return;
  // The entry shown was stored; a neighbour the editor can't hold leaves
  // the editor on it.
  if (!FitsItsEditor(*EditedEntry<Entry>())) {
    PointEditAt<Entry>(m_work.place);
    TellEntryOverLimit();
    return;
  }
  SelectEntry(SideOfPlace(next), next.index);
  LoadEntryWork(m_work, *EditedEntry<Entry>(), next);
  ReloadPages();
}

template <class Entry>
void cEntryEditor<Entry>::InheritChanged() {
  for (int i = 0; i < PageCount(); ++i) Page(i)->ApplyAll();
  InheritNow(m_work);
  ReloadPages();
}

template <class Entry>
void cEntryEditor<Entry>::ReloadPages() {
  for (int i = 0; i < PageCount(); ++i) {
    if (cEntryPage<Entry>* page = EntryPage(i)) page->Reload();
  }
}

template <class Entry>
void cEntryEditor<Entry>::PageShown(const cDialog& page) {
  for (int i = 0; i < PageCount(); ++i) {
    if (Page(i) == &page) EditorConfig().m_anEditPage[kEntryKindOf<Entry>] = i;
  }
}

template <class Entry>
void cEntryEditor<Entry>::RepaintShownPage() {
  if (auto* page = dynamic_cast<cEntryPage<Entry>*>(CurrentPage())) page->RepaintPreview();
}

template class cEntryEditor<cEdBlock>;
template class cEntryEditor<cEdChara>;
template class cEntryEditor<cEdItem>;

}  // namespace velmora
