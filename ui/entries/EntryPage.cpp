#include "ui/entries/EntryPage.h"

#include <QPainter>
#include <QVBoxLayout>

#include "objects/CondRules.h"
#include "objects/CondSummary.h"
#include "project/Database.h"
#include "ui/conditions/EditCondition.h"
#include "ui/controls/Picture.h"
#include "ui/database/ObjectListDialog.h"
#include "ui/entries/AnimeSetListDialog.h"
#include "ui/entries/EntryRows.h"
#include "ui/framework/IdleWake.h"
#include "ui/list/RecordListControl.h"
#include "ui/palette/SurfaceImage.h"
#include "graphics/stageview/ObjectDraw.h"

namespace velmora {
namespace {

constexpr cRecordListIds kCondListIds{kIdAppearList, kIdAppearInsert, kIdAppearEdit, kIdAppearDelete, 1};

cObjectLook LookOfEntry(const cEdBlock& block) { return LookOf(block); }
cObjectLook LookOfEntry(const cEdChara& chara) { return LookOf(chara, Database().m_AnimeSet.m_vecEntries); }
cObjectLook LookOfEntry(const cEdItem& item) { return LookOf(item); }

// A block's or an item's conditions can't name the distance to the entry
// itself: only a character has a place of its own to measure from.
template <class Entry>
constexpr bool kMeasuresDistance = std::is_same_v<Entry, cEdChara>;

}  // namespace

template <class Entry>
cEntryPage<Entry>::cEntryPage(cDialogManager& manager, cEntryWork<Entry>& work, const cEntryPageForm<Entry>& form,
                              cEntryEditorHost& host)
    : cDialog(manager, nullptr), m_work(work), m_page(form), m_host(host), m_rules(*this, form.rules) {
  SetLogName("entry page");
  m_form.rows = {EntryNavRow()};
  for (cFormRow& row : form.rules.rows(work)) m_form.rows.push_back(std::move(row));
  m_form.okCancel = false;
  m_conds.m_nMax = kMaxEntryConds;
  m_conds.m_RowText = [](int, const cEdCond& cond) { return CondSummaryText(cond); };
  m_conds.m_Edit = [this](cEdCond& cond, bool isNew) {
    const eDistanceCond distance = kMeasuresDistance<Entry> ? eDistanceCond::Allowed : eDistanceCond::Refused;
    return EditCondition(cond, isNew, Manager(), Window(), distance);
  };
  if (!kMeasuresDistance<Entry>) m_conds.m_PasteRefusal = DistancePasteRefusal;
}

// The sheet is as tall as its tallest page, the flows; the shorter pages
// keep their rows at the top rather than spreading them over that height.
template <class Entry>
void cEntryPage<Entry>::BuildClient(QWidget& client) {
  cDialog::BuildClient(client);
  if (auto* column = qobject_cast<QVBoxLayout*>(client.layout())) column->addStretch(1);
}

template <class Entry>
void cEntryPage<Entry>::BindOwnControls() {
  m_rules.Bind(m_work);
  if (!Item(kIdAppearList)) return;
  m_conds.SetData(&m_work.entry.m_vCond);
  BindRecordList(*this, kCondListIds, m_conds);
}

template <class Entry>
bool cEntryPage<Entry>::ShowStart(const cEditorStart& start) {
  if (start.flow != 0 || start.command != 0 || start.condition == 0) return false;
  return ShowListRow(*this, kIdAppearList, m_conds, start.condition - 1);
}

template <class Entry>
void cEntryPage<Entry>::Reload() {
  if (!IsOpen()) return;
  if (Item(kIdAppearList)) m_conds.SetData(&m_work.entry.m_vCond);
  // The fields first: a limit that follows them reads what they show.
  RefreshAll();
  m_rules.Follow(m_work);
  UpdateEnables();
}

// Controls of an inherited group stay as the source has them; the others
// take part as the page's rules say.
template <class Entry>
void cEntryPage<Entry>::UpdateEnables() {
  for (const cInheritGroupIds& group : m_page.groups) {
    for (int id : group.ids) EnableControl(id, true);
  }
  m_rules.UpdateEnables(m_work);
  const bool sourced = m_work.entry.m_nInheritSrc != kInheritNone;
  EnableControl(kIdInheritNo, sourced);
  for (const cInheritGroupIds& group : m_page.groups) {
    EnableControl(group.box, sourced);
    if (!m_work.inherit[static_cast<size_t>(group.group)]) continue;
    for (int id : group.ids) EnableControl(id, false);
  }
  EnableControl(kIdEntryPrev, NeighbourIndex(m_work.place, -1) >= 0);
  EnableControl(kIdEntryNext, NeighbourIndex(m_work.place, 1) >= 0);
  SetItemText(kIdEntryNumber, EntryNumberText(m_work.place));
  RequestPreview();
}

template <class Entry>
bool cEntryPage<Entry>::IsInheritChoice(int id) const {
  if (id == kIdInheritSrc || id == kIdInheritNo) return true;
  for (const cInheritGroupIds& group : m_page.groups) {
    if (group.box == id) return true;
  }
  return false;
}

template <class Entry>
bool cEntryPage<Entry>::PickFromList(int id) {
  bool picked = false;
  if (id == kIdGraphicPick) {
    cObjectListDialog list(Manager(), Window(), m_work.entry.m_nGraphicKind, m_work.entry.m_nGraphicNo);
    picked = list.DoModal(kDisableOthers) == 1;
  } else if constexpr (std::is_same_v<Entry, cEdChara>) {
    if (id != kIdAnimeSetPick) return false;
    cAnimeSetListDialog list(Manager(), Window(), m_work.entry.m_nAnimeSet);
    picked = list.DoModal(kDisableOthers) == 1;
  } else {
    return false;
  }
  if (picked) Reload();
  return true;
}

template <class Entry>
void cEntryPage<Entry>::OnDialogCommand(int id, int notice) {
  if (notice == kNoticeClicked && (id == kIdEntryPrev || id == kIdEntryNext)) {
    m_host.ShowNeighbour(id == kIdEntryNext ? 1 : -1);
    return;
  }
  if (notice == kNoticeClicked && PickFromList(id)) return;
  if (IsInheritChoice(id)) {
    if (FindChanged(MakeCommand(id, notice)) == 0) return;
    FindControl(id)->Commit();
    m_host.InheritChanged();
    return;
  }
  m_rules.OnCommand(m_work, id, notice);
}

template <class Entry>
void cEntryPage<Entry>::OnSetActive() {
  m_host.PageShown(*this);
  RequestPreview();
}

template <class Entry>
void cEntryPage<Entry>::RequestPreview() {
  m_bPreviewWanted = true;
  WakeIdle();
}

template <class Entry>
void cEntryPage<Entry>::RepaintPreview() {
  if (!m_bPreviewWanted) return;
  m_bPreviewWanted = false;
  auto* picture = FindControlOf<cPicture>(kIdGraphicPreview);
  if (!picture) return;
  constexpr int kCell = 32;
  if (!m_cell.IsLoaded() && !m_cell.CreateSurface(kCell, kCell, 32, false)) return;
  m_cell.Fill(0);
  DrawObject(m_cell, 0, 0, LookOfEntry(m_work.entry), false);
  QImage& back = picture->BeginDraw();
  QPainter painter(&back);
  painter.drawImage(back.rect(), ToImage(m_cell));
  painter.end();
  picture->Present();
}

template class cEntryPage<cEdBlock>;
template class cEntryPage<cEdChara>;
template class cEntryPage<cEdItem>;

}  // namespace velmora
