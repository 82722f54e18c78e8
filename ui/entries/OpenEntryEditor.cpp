#include "ui/entries/OpenEntryEditor.h"

#include "core/Log.h"
#include "core/SystemText.h"
#include "ui/entries/EntryEditor.h"
#include "ui/framework/DialogManager.h"

namespace velmora {
namespace {

cEntryEditorBase* g_pOpenEditor = nullptr;

bool IsBlankEntry(const cEditPlace& place) {
  return (place.target == kEditStageEntry || place.target == kEditCommonEntry) && place.index == 0;
}

}  // namespace

cEntryEditorBase* OpenEntryEditor() { return g_pOpenEditor; }

template <class Entry>
bool EditEntryAt(cDialogManager& manager, QWidget* owner, const cEditPlace& place, Entry* cell, cEditorClosed closed,
                 const cEditorStart& start) {
  if (g_pOpenEditor || IsBlankEntry(place)) return false;
  if (!PointEditAt<Entry>(place, cell)) {
    ErrorBoxText(SysText("編集するデータがありません！"));
    return false;
  }
  if (!FitsItsEditor(*EditedEntry<Entry>())) {
    TellEntryOverLimit();
    return false;
  }
  if (!closed) {
    cEntryEditor<Entry> editor(manager, owner, place, true, start);
    g_pOpenEditor = &editor;
    editor.Start();
    g_pOpenEditor = nullptr;
    return true;
  }
  EnableAll(manager, false);
  auto* editor = new cEntryEditor<Entry>(manager, owner, place, false, start);
  g_pOpenEditor = editor;
  editor->onFinished = [&manager, closed = std::move(closed)](int result) {
    g_pOpenEditor = nullptr;
    EnableAll(manager, true);
    closed(result);
  };
  editor->Start();
  return true;
}

namespace {

// The editor of an entry that isn't a cell, by the place's kind.
bool EditEntryOfKind(cDialogManager& manager, QWidget* owner, const cEditPlace& place, cEditorClosed closed,
                     const cEditorStart& start) {
  if (place.kind == kKindBlock) return EditEntryAt<cEdBlock>(manager, owner, place, nullptr, std::move(closed), start);
  if (place.kind == kKindChara) return EditEntryAt<cEdChara>(manager, owner, place, nullptr, std::move(closed), start);
  return EditEntryAt<cEdItem>(manager, owner, place, nullptr, std::move(closed), start);
}

}  // namespace

bool EditPaletteEntry(cDialogManager& manager, QWidget* owner, cPaletteSide side, int index, cEditorClosed closed,
                      const cEditorStart& start) {
  const cEditPlace place{side.stagePlt ? kEditStageEntry : kEditCommonEntry, side.kind, index};
  return EditEntryOfKind(manager, owner, place, std::move(closed), start);
}

bool EditDefaultEntry(cDialogManager& manager, QWidget* owner, int kind) {
  return EditEntryOfKind(manager, owner, {kEditDefaultEntry, kind, -1}, {}, {});
}

template bool EditEntryAt(cDialogManager&, QWidget*, const cEditPlace&, cEdBlock*, cEditorClosed, const cEditorStart&);
template bool EditEntryAt(cDialogManager&, QWidget*, const cEditPlace&, cEdChara*, cEditorClosed, const cEditorStart&);
template bool EditEntryAt(cDialogManager&, QWidget*, const cEditPlace&, cEdItem*, cEditorClosed, const cEditorStart&);

}  // namespace velmora
