#include "ui/whereused/WhereUsedWindow.h"

#include <QListWidget>

#include "core/SystemText.h"
#include "objects/LabelTable.h"
#include "ui/controls/RowList.h"
#include "ui/framework/Commands.h"

namespace velmora {
namespace {

enum eWhereUsedIds { kIdKind = 1101, kIdNumber, kIdSearch, kIdResults, kIdOpenUse, kIdStatus };
constexpr int kShownRows = 18;
constexpr int kMaxNumber = 9999;

std::vector<std::string> KindTexts() {
  std::vector<std::string> texts;
  for (int kind = 0; kind < static_cast<int>(eUseKind::Count); ++kind) texts.push_back(UseKindLabel(static_cast<eUseKind>(kind)));
  return texts;
}

}  // namespace

cWhereUsedWindow::cWhereUsedWindow(cDialogManager& manager, QWidget* parent, cWhereUsedSearch& search, cOpenUse open)
    : cDialog(manager, parent), m_search(search), m_open(std::move(open)) {
  SetTitle(QString::fromUtf8("使用箇所の検索"));
  SetLogName("where used");
  SetWindowStyle(eWindowStyle::ToolWindow);
  m_form.okCancel = false;
  m_form.rows = {
      {"検索するもの", cComboDesc{kIdKind, &m_search.kind, KindTexts()}},
      {"番号", cEditValDesc{kIdNumber, &m_search.number, 0, kMaxNumber}},
      {nullptr, cButtonDesc{kIdSearch, "検索"}, nullptr, nullptr, true},
      RowListRow(kIdResults, kShownRows),
      {nullptr, cStaticDesc{kIdStatus, ""}},
      {nullptr, cButtonDesc{kIdOpenUse, "開く"}},
  };
}

bool cWhereUsedWindow::Open() { return Create(0, true); }

void cWhereUsedWindow::OnInitDialog() {
  cDialog::OnInitDialog();
  ShowStatus();
  EnableControl(kIdOpenUse, m_open != nullptr);
}

void cWhereUsedWindow::BindOwnControls() {
  auto* list = qobject_cast<QListWidget*>(Item(kIdResults));
  if (!list) return;
  list->setMinimumWidth(list->fontMetrics().averageCharWidth() * 90);
  AddControl(std::make_unique<cRowList>(
      *this, list, kIdResults,
      [this] {
        std::vector<std::string> rows;
        for (const cFoundUse& found : m_search.results) rows.push_back(UseLineText(found.file, found.use));
        return rows;
      },
      kIdOpenUse));
}

void cWhereUsedWindow::SearchFor(const cUseTarget& target) {
  m_search.kind = static_cast<int>(target.kind);
  m_search.number = target.number;
  RefreshAll();
  Search();
}

void cWhereUsedWindow::Search() {
  m_search.Run();
  RefreshAll();
  ShowStatus();
}

// How many were found, and which files could not be searched.
void cWhereUsedWindow::ShowStatus() {
  std::string text;
  AppendFormat(text, SysText("%d 件"), static_cast<int>(m_search.results.size()));
  for (const std::string& file : m_search.unreadable) AppendFormat(text, SysText("　%s は読めないため検索していません"), file.c_str());
  if (!m_open) text += SysText("　※使用箇所は、このウィンドウを閉じてからプロジェクトメニューの検索で開けます");
  SetItemText(kIdStatus, text);
}

void cWhereUsedWindow::OnDialogCommand(int id, int notice) {
  if (notice != kNoticeClicked) return;
  if (id == kIdSearch) {
    ApplyAll();
    Search();
  }
  const cList* list = FindControlOf<cList>(kIdResults);
  if (id == kIdOpenUse && m_open && list && list->Selection() >= 0 &&
      static_cast<size_t>(list->Selection()) < m_search.results.size()) {
    // A copy: opening may take this window away with the stage window.
    const cFoundUse found = m_search.results[static_cast<size_t>(list->Selection())];
    m_open(found);
  }
}

}  // namespace velmora
