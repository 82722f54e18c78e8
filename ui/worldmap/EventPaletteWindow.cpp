#include "ui/worldmap/EventPaletteWindow.h"

#include "core/EditConfig.h"
#include "project/WorldMap.h"
#include "ui/framework/Commands.h"
#include "ui/framework/QtText.h"

namespace velmora {
namespace {

using P = cEventPaletteWindow;
constexpr cRecordListIds kListIds{P::kIdList, P::kIdInsert, P::kIdEdit, P::kIdDelete, 1, 24};

}  // namespace

cEventPaletteWindow::cEventPaletteWindow(cDialogManager& manager, QWidget* parent, cWindowPlace& place,
                                         const cWorldPaletteLinks& links)
    : cWorldPalette(manager, parent, place, links), m_templates(WorldMap(), WorldEdit()) {
  SetTitle(Ui("イベントパレット"));
  SetLogName("DLG_WORLDEVENT");
  m_templates.m_Edit = links.editEvent;
  EditConfig& config = EditorConfig();
  m_form.rows = {
      {nullptr, cCheckDesc{kIdEditIfPlaced, &config.m_bEditIfPlaced, "配置済みなら編集"}},
      {nullptr, cCheckDesc{kIdEditBeforePlace, &config.m_bEditBeforePlace, "配置直前に編集"}},
      {nullptr, cCheckDesc{kIdAutoNumber, &config.m_bAutoWorldNumber, "ワールド番号を自動で振り分け"}},
      FormGroup("イベント一覧(テンプレート)",
                {RecordListRows(kListIds), {nullptr, cButtonDesc{kIdCount, "ﾃﾞｰﾀ数"}, nullptr, nullptr, true}}),
  };
}

bool cEventPaletteWindow::Open(const QRect& anchor) {
  const int current = WorldEdit().m_iCurrent;
  m_templates.SelectOnly(current < m_templates.Count() ? current : -1, false);
  if (!Create(0, false)) return false;
  Place(anchor, true);
  ShowWindow(*Window());
  SelectionChanged();
  return true;
}

void cEventPaletteWindow::BindOwnControls() {
  m_pList = BindRecordList(*this, kListIds, m_templates);
  if (!m_pList) return;
  m_pList->onChanged = [this] { TemplatesChanged(); };
  cListView<cEdWorldEvent>& view = m_pList->View();
  view.onRecordChanged = [this, shown = view.onRecordChanged] {
    shown();
    SelectionChanged();
  };
}

void cEventPaletteWindow::SelectionChanged() {
  m_templates.ShareSelection();
  Changed();
}

void cEventPaletteWindow::TemplatesChanged() {
  WorldEdit().m_bWorldDirty = 1;
  SelectionChanged();
}

void cEventPaletteWindow::OnDialogCommand(int id, int notice) {
  if (PassMapCommand(id)) return;
  if (id == kIdCount && notice == kNoticeClicked) {
    if (m_pList && m_pList->ChangeCount(cEdWorldMap::kMaxTemplates)) TemplatesChanged();
    return;
  }
  // The options count from the click on; the editor settings keep them.
  if (cControl* option = FindChanged(MakeCommand(id, notice)) ? FindControl(id) : nullptr) option->Commit();
}

}  // namespace velmora
