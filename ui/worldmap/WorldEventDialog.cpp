#include "ui/worldmap/WorldEventDialog.h"

#include <QLabel>
#include <QPainter>
#include <cstdio>

#include "core/AppControl.h"
#include "core/SystemText.h"
#include "graphics/FixedBitmaps.h"
#include "objects/GValInfo.h"
#include "objects/code/VarCombo.h"
#include "stage/VarRename.h"
#include "ui/controls/Combo.h"
#include "ui/controls/ComboRows.h"
#include "ui/controls/PathBrowse.h"
#include "ui/controls/Picture.h"
#include "ui/framework/Commands.h"
#include "ui/framework/QtPrompt.h"
#include "ui/framework/QtText.h"
#include "ui/framework/StockDialogs.h"
#include "ui/palette/SurfaceImage.h"
#include "ui/whereused/VariableUsesMenu.h"

namespace velmora {
namespace {

using D = cWorldEventDialog;
constexpr cRecordListIds kPageIds{D::kIdPageList, D::kIdPageInsert, 0, D::kIdPageDelete, 2, 20};
constexpr int kNameLimit = 20;
constexpr int kPathLimit = 260;
constexpr int kValueLimit = 999999;
constexpr int kCell = 32;

bool IsWorld(const cEdWorldPage& page) { return page.m_iType == cEdWorldPage::TypeWorld; }
bool HasCondVar(const cEdWorldPage& page) { return page.m_iCondVar != 0; }
bool VariationOn(const cEdWorldPage& page) { return IsWorld(page) && page.m_bVariation; }

// Controls that take part only while their test holds for the page shown.
struct cEnableRule {
  int id;
  bool (*enabled)(const cEdWorldPage&);
};
constexpr cEnableRule kEnableRules[] = {
    {D::kIdCondValue, HasCondVar}, {D::kIdCondOp, HasCondVar},  {D::kIdWorldNo, IsWorld},
    {D::kIdWorldName, IsWorld},    {D::kIdStartStage, IsWorld}, {D::kIdStageBrowse, IsWorld},
    {D::kIdVariation, IsWorld},    {D::kIdVarVar, VariationOn}, {D::kIdVarVarName, VariationOn},
    {D::kIdVarValue, VariationOn}, {D::kIdPassable, IsWorld},   {D::kIdReplayable, IsWorld},
    {D::kIdGameClear, IsWorld},
};

// The condition's list starts with the line for no variable, so that a row
// is the variable's own number; the variation's list has no such line.
cComboRows CondVarRows() {
  cComboRows rows{SysTexts({"変数条件なし"}), 0};
  for (std::string& row : VarComboRows(cRecordVarNames<cStageVar>(g_vecCommonVar))) {
    rows.texts.push_back(std::move(row));
  }
  return rows;
}
cComboRows VariationVarRows() { return {VarComboRows(cRecordVarNames<cStageVar>(g_vecCommonVar)), 1}; }

cComboRows GraphicRows() {
  const int rows = std::max(FixedBitmap(kFixedWorldEvent).Height() / kCell, 1);
  cComboRows numbers;
  for (int row = 1; row <= rows; ++row) numbers.texts.push_back(std::to_string(row));
  return numbers;
}

cCustomDesc WrappedText(int id, const char* utf8) {
  return {id, [utf8](QWidget* parent) {
            auto* label = new QLabel(Ui(utf8), parent);
            label->setWordWrap(true);
            return label;
          }};
}

}  // namespace

cWorldEventDialog::cWorldEventDialog(cDialogManager& manager, QWidget* parent, cEdWorldEvent& event)
    : cRecordDialog(manager, parent, event) {
  SetTitle(Ui("イベント"));
  SetLogName("DLG_WORLDEVENTEDIT");
  m_pages.m_lpWork = &m_page;
  m_pages.m_nMin = 1;
  m_pages.m_nMax = cEdWorldEvent::kMaxPages;
  m_pages.m_RowText = [](int, const cEdWorldPage& page) {
    char text[64];
    std::snprintf(text, sizeof text, SysText("ワールド番号 %d"), page.m_iWorldNo);
    return std::string(text);
  };
  cEdWorldPage& p = m_page;
  const std::vector<cFormRow> left = {
      {"イベント名", EditStrLine(kIdName, &Work().m_strName, kNameLimit)},
      FormGroup("ページデータ", {RecordListRows(kPageIds)}),
  };
  const std::vector<cFormRow> right = {
      {"イベントタイプ", ComboOf(kIdType, &p.m_iType, {SysTexts({"ワールド", "道", "壁"})})},
      {"グラフィック", ComboOf(kIdGraphic, &p.m_iGraphic, GraphicRows())},
      {nullptr, cPictureDesc{kIdPreview, kCell, kCell}, nullptr, nullptr, true},
      {"ワールド番号", cEditValDesc{kIdWorldNo, &p.m_iWorldNo, 0, 999}},
      {nullptr, cStaticDesc{0, "※「0」なら番号なし（最初からクリアされた状態）"}},
      {"ワールド名", EditStrLine(kIdWorldName, &p.m_strWorldName, kNameLimit)},
      {"開始ステージ", EditStrLine(kIdStartStage, &p.m_strStartStage, kPathLimit)},
      {nullptr, cButtonDesc{kIdStageBrowse, "参照"}, nullptr, nullptr, true},
      {nullptr, cCheckDesc{kIdPassable, &p.m_bPassable, "クリアしなくても通行可能"}},
      {nullptr, cCheckDesc{kIdReplayable, &p.m_bReplayable, "クリア後でもプレイ可能"}},
      {"ゲームクリア",
       ComboOf(kIdGameClear, &p.m_iGameClear, {SysTexts({"しない", "2周目へ突入", "タイトルへ戻る（※非推奨）"})})},
      FormGroup("出現条件",
                {{"ワールド", cEditValDesc{kIdCondWorld, &p.m_iCondWorld, 0, 999}, nullptr, "をクリアする"},
                 {nullptr, cStaticDesc{0, "※「0」なら常に出現"}},
                 {"コモン変数", ComboOf(kIdCondVar, &p.m_iCondVar, CondVarRows())},
                 {nullptr, cButtonDesc{kIdCondVarName, "_"}, nullptr, nullptr, true},
                 {"値", cEditValDesc{kIdCondValue, &p.m_iCondValue, -kValueLimit, kValueLimit}},
                 {nullptr,
                  ComboOf(kIdCondOp, &p.m_iCondOp,
                          {SysTexts({"である", "でない", "以上", "以下", "より上", "より下", "の倍数である",
                                     "の倍数でない"})}),
                  nullptr, nullptr, true},
                 {"トータルスコアが", cEditValDesc{kIdCondScore, &p.m_iCondScore, -kValueLimit, kValueLimit}, nullptr,
                  "以上"}}),
      FormGroup("バリエーション",
                {{nullptr, cCheckDesc{kIdVariation, &p.m_bVariation, "バリエーション"}},
                 {"コモン変数", ComboOf(kIdVarVar, &p.m_iVarVar, VariationVarRows())},
                 {nullptr, cButtonDesc{kIdVarVarName, "_"}, nullptr, nullptr, true},
                 {"値", cEditValDesc{kIdVarValue, &p.m_iVarValue, -kValueLimit, kValueLimit}},
                 {nullptr, WrappedText(kIdVariationNote,
                                       "☆ワールド開始前にコモン変数を変更する。例えば、コモン変数「難易度」を変えて"
                                       "ノーマルとハードを別のワールドとして出したいときなどに利用する")}}),
  };
  m_form.rows = {FormColumns({left, right})};
}

void cWorldEventDialog::PrepareWork(cEdWorldEvent& work) {
  // A damaged event may come without pages; the dialog shows one at least.
  if (work.m_vecPages.empty()) work.m_vecPages.emplace_back();
  m_pages.SetData(&work.m_vecPages);
}

void cWorldEventDialog::BindOwnControls() {
  m_pPageList = BindRecordList(*this, kPageIds, m_pages);
  // "_" keeps to the size of its one character.
  for (int id : {kIdCondVarName, kIdVarVarName}) {
    if (QWidget* button = Item(id)) button->setFixedWidth(button->fontMetrics().height() * 2);
  }
  OfferVariableUses(*this, kIdCondVarName, kIdCondVar, [] { return static_cast<int>(kScopeCommon); });
  OfferVariableUses(*this, kIdVarVarName, kIdVarVar, [] { return static_cast<int>(kScopeCommon); });
}

void cWorldEventDialog::OnCommand(uint32_t wParam, intptr_t lParam) {
  const int id = CommandId(wParam);
  if (id == kIdOk) {
    ApplyAll();
    m_pages.Store();
  }
  cRecordDialog::OnCommand(wParam, lParam);
  // OK and Cancel have closed the dialog and taken its controls.
  if (id == kIdOk || id == kIdCancel || !m_pPageList) return;
  m_pPageList->StoreIfFieldChanged(wParam);
  FollowPageType();
  UpdateEnables();
}

// Roads and walls have no world number.
void cWorldEventDialog::FollowPageType() {
  if (IsWorld(m_page) || m_page.m_iWorldNo == 0) return;
  m_page.m_iWorldNo = 0;
  m_pages.Store();
  RefreshAll();
}

void cWorldEventDialog::UpdateEnables() {
  for (const cEnableRule& rule : kEnableRules) EnableControl(rule.id, rule.enabled(m_page));
  ShowPreview();
}

void cWorldEventDialog::ShowPreview() {
  auto* picture = FindControlOf<cPicture>(kIdPreview);
  if (!picture) return;
  cSurface cell;
  if (!cell.CreateSurface(kCell, kCell, 32, false)) return;
  cell.Fill(0);
  const int column = m_page.m_iWorldNo != 0 ? 0 : 1;
  cell.Blt(0, 0, kCell, kCell, FixedBitmap(kFixedWorldEvent), column * kCell, m_page.m_iGraphic * kCell, false);
  QPainter(&picture->BeginDraw()).drawImage(0, 0, ToImage(cell));
  picture->Present();
}

void cWorldEventDialog::OnDialogCommand(int id, int notice) {
  if (notice != kNoticeClicked) return;
  if (id == kIdCondVarName || id == kIdVarVarName) RenameVariable(id == kIdCondVarName ? kIdCondVar : kIdVarVar);
  else if (id == kIdStageBrowse) BrowseStage();
}

void cWorldEventDialog::RenameVariable(int comboId) {
  const auto* combo = FindControlOf<cCombo>(comboId);
  const int number = combo ? combo->SelectedValue() : 0;
  if (number < 1) {
    AppControl().Beep();
    return;
  }
  auto input = [this](OwnerWindow, std::string& text, int limit, const char* caption) {
    return InputString(Window(), Manager(), text, limit, false, caption) == 1;
  };
  if (velmora::RenameVariable(OwnerOf(Window()), kScopeCommon, number, input)) FillVariableCombos();
}

void cWorldEventDialog::FillVariableCombos() {
  const std::pair<int, cComboRows> combos[] = {{kIdCondVar, CondVarRows()}, {kIdVarVar, VariationVarRows()}};
  for (const auto& [id, rows] : combos) {
    if (auto* combo = FindControlOf<cCombo>(id)) combo->SetRows(rows);
  }
}

void cWorldEventDialog::BrowseStage() {
  const cFilePrompt request =
      FilePromptOf("ステージファイルの選択", "data\\stg4", "StageFile ( *.stg4_* )", "*.stg4_*", "stg4_*");
  if (!BrowseIntoEdit(*this, kIdStartStage, request)) return;
  ApplyAll();
  m_pages.Store();
}

}  // namespace velmora
