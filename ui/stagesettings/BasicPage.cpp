#include <algorithm>
#include <array>
#include <string>

#include "core/EditConfig.h"
#include "core/SystemText.h"
#include "objects/LabelTable.h"
#include "project/Database.h"
#include "stage/HistoryMemory.h"
#include "stage/StageSettings.h"
#include "stage/StageSize.h"
#include "ui/controls/ComboRows.h"
#include "ui/framework/QtText.h"
#include "ui/list/RecordListControl.h"
#include "ui/stagesettings/BackDialog.h"
#include "ui/stagesettings/StageSettingsIds.h"
#include "ui/stagesettings/StageSettingsPage.h"

namespace velmora {
namespace {

constexpr int kNameLimit = 30;
constexpr int kMaxBackLayers = 8;
constexpr int kMaxAutoSpeed = 480;
constexpr int kMaxTime = 999;
constexpr int kMaxHitTime = 9999;
constexpr cRecordListIds kBackIds{kIdBackList, kIdBackInsert, kIdBackEdit, kIdBackDelete, 1, 24};

struct cScrollRow {
  const char* text;
  int32_t cStage::*on;
  int32_t cStage::*limit;
  int minimum;
  int maximum;
};

// Left, right, top, bottom: the order of eScrollEdge.
constexpr cScrollRow kScrollRows[kEdgeCount] = {
    {"横スクロールの最小値（左端）を設定 →", &cStage::m_bScrollMinX, &cStage::m_iScrollMinX, 0, 492},
    {"横スクロールの最大値（右端）を設定 →", &cStage::m_bScrollMaxX, &cStage::m_iScrollMaxX, 19, 511},
    {"縦スクロールの最小値（上端）を設定 →", &cStage::m_bScrollMinY, &cStage::m_iScrollMinY, 0, 497},
    {"縦スクロールの最大値（下端）を設定 →", &cStage::m_bScrollMaxY, &cStage::m_iScrollMaxY, 14, 511},
};

constexpr const char* kRankLabels[kRankItemCount] = {"スコア", "残り時間", "クリア時間", "残りHP", "残りSP"};

std::string WithoutCarriageReturns(std::string text) {
  std::erase(text, '\r');
  return text;
}

// Page 1 (144) "基本設定": size, scroll, time, gravity, damage times,
// music, backgrounds and what the game shows. The size goes through the
// page's own fields, since a new size is applied as a whole at OK; so do
// the background layers and the ranking boxes, which a damaged file may
// hold too few or too many of.
class cBasicPage : public cStageSettingsPage {
 public:
  cBasicPage(cDialogManager& manager, cStage& stage)
      : cStageSettingsPage(manager, stage, "stage settings 1"),
        m_nWidth(stage.m_nWidth),
        m_nHeight(stage.m_nHeight),
        m_vecBack(stage.m_vecBack) {
    for (int i = 0; i < kRankItemCount; ++i) {
      m_aRank[static_cast<size_t>(i)] = i < static_cast<int>(stage.m_vecRankItem.size()) ? VecAt(stage.m_vecRankItem, i) : 0;
    }
    SetUpBackList();
    m_form.rows = {FormColumns({LeftRows(), RightRows()})};
  }

 protected:
  void BindOwnControls() override {
    if (auto* list = BindRecordList(*this, kBackIds, m_backList)) list->View().Show();
    // The hidden widths come and go with their boxes; their room stays, so
    // the limits beside them don't change width at each click.
    for (int edge = 0; edge < kEdgeCount; ++edge) {
      if (QWidget* text = Item(kIdHiddenWidth + edge)) {
        text->setMinimumWidth(text->fontMetrics().horizontalAdvance(Ui("隠れる幅 000(bl)")));
      }
    }
  }

  void UpdateEnables() override {
    ShowMemoryFigures();
    for (int edge = 0; edge < kEdgeCount; ++edge) ShowScrollLimit(edge);
    const bool timed = IsChecked(kIdTimeLimitOn);
    EnableControl(kIdTimeLimit, timed);
    EnableControl(kIdWarnTime, timed);
    // Without the wait after a clear there is no ranking entry; the boxes
    // keep their values for when the wait comes back.
    const bool ranked = !IsChecked(kIdSkipClearWait);
    for (int item = 0; item < kRankItemCount; ++item) EnableControl(kIdRankItem + item, ranked);
  }

  bool OnApply() override {
    cStage& stage = Stage();
    stage.m_vecBack = m_vecBack;
    if (stage.m_vecRankItem.size() < m_aRank.size()) stage.m_vecRankItem.resize(m_aRank.size());
    std::copy(m_aRank.begin(), m_aRank.end(), stage.m_vecRankItem.begin());
    const EditConfig& config = EditorConfig();
    ApplyStageSize(m_nWidth, m_nHeight, config.m_nSizeDirX, config.m_nSizeDirY);
    return true;
  }

 private:
  void SetUpBackList() {
    m_backList.m_nMin = 0;
    m_backList.m_nMax = kMaxBackLayers;
    m_backList.m_RowText = [](int, const cStageBack& back) { return BackRowText(back); };
    m_backList.m_Edit = [this](cStageBack& back, bool) {
      cBackDialog dialog(Manager(), Window(), back);
      return dialog.DoModal(kDisableOthers) == 1;
    };
    m_backList.SetData(&m_vecBack);
  }

  std::vector<cFormRow> LeftRows() {
    cStage& s = Stage();
    return {
        {"ステージ名", EditStrLine(kIdStageName, &s.m_strName, kNameLimit)},
        FormGroup("サイズ", SizeRows()),
        FormGroup("スクロール", ScrollRows()),
        {nullptr, cCheckDesc{kIdTimeLimitOn, &s.m_bTimeLimit, "制限時間あり →"}},
        {nullptr, SpinEdit(kIdTimeLimit, &s.m_iTimeLimit, 1, kMaxTime), nullptr, nullptr, true},
        {"警告音の開始時間", SpinEdit(kIdWarnTime, &s.m_iWarnTime, 0, kMaxTime)},
        {"重力", SpinEdit(kIdGravity, &s.m_dGravity, 0.1, 1.0, 0.1), nullptr, "※「0.4」以外での動作は無保障"},
        {"主人公の連続ダメージ無効化時間(1/60s)", SpinEdit(kIdPlHitTime, &s.m_iPlHitTime, 0, kMaxHitTime), nullptr,
         "※衝撃も無効化"},
        {"主人公の同一キャラから受ける連続ダメージ無効化時間(1/60s)",
         SpinEdit(kIdPlSameHitTime, &s.m_iPlSameHitTime, 1, kMaxHitTime)},
        {"敵の連続ダメージ無効化時間(1/60s)", SpinEdit(kIdEnHitTime, &s.m_iEnHitTime, 0, kMaxHitTime)},
        {"敵の同一キャラから受ける連続ダメージ無効化時間(1/60s)",
         SpinEdit(kIdEnSameHitTime, &s.m_iEnSameHitTime, 1, kMaxHitTime)},
    };
  }

  std::vector<cFormRow> SizeRows() {
    EditConfig& config = EditorConfig();
    return {
        {"横幅(20～512)", SpinEdit(kIdWidth, &m_nWidth, 1, kMaxStageSize)},
        {nullptr, ComboOf(kIdDirX, &config.m_nSizeDirX, OptionRows(eOptionList::HorizontalExtension)), nullptr,
         nullptr, true},
        {"縦幅(15～512)", SpinEdit(kIdHeight, &m_nHeight, 1, kMaxStageSize)},
        {nullptr, ComboOf(kIdDirY, &config.m_nSizeDirY, OptionRows(eOptionList::VerticalExtension)), nullptr, nullptr,
         true},
        {nullptr, cStaticDesc{0, "消費メモリ\n上限"}},
        {nullptr, cStaticDesc{kIdMemoryFigures, ""}, nullptr, nullptr, true},
        {nullptr, cStaticDesc{kIdUndoDrop, ""}},
    };
  }

  std::vector<cFormRow> ScrollRows() {
    cStage& s = Stage();
    std::vector<cFormRow> rows = RepeatRows(kEdgeCount, [&s](int edge) {
      const cScrollRow& row = kScrollRows[edge];
      return std::vector<cFormRow>{
          {nullptr, cCheckDesc{kIdScrollOn + edge, &(s.*row.on), row.text}},
          {nullptr, SpinEdit(kIdScrollLimit + edge, &(s.*row.limit), row.minimum, row.maximum), nullptr, nullptr, true},
          {nullptr, cStaticDesc{kIdHiddenWidth + edge, ""}, nullptr, nullptr, true},
      };
    });
    const cFormRow types[] = {
        {"横スクロール", ComboOf(kIdScrollTypeX, &s.m_iScrollTypeX, OptionRows(eOptionList::ScrollType))},
        {"オートスクロール速度", SpinEdit(kIdAutoSpeedX, &s.m_iAutoSpeedX, -kMaxAutoSpeed, kMaxAutoSpeed)},
        {"縦スクロール", ComboOf(kIdScrollTypeY, &s.m_iScrollTypeY, OptionRows(eOptionList::ScrollType))},
        {"オートスクロール速度", SpinEdit(kIdAutoSpeedY, &s.m_iAutoSpeedY, -kMaxAutoSpeed, kMaxAutoSpeed)},
    };
    rows.insert(rows.end(), std::begin(types), std::end(types));
    return rows;
  }

  std::vector<cFormRow> RightRows() {
    cStage& s = Stage();
    return {
        CheckRow(kIdStatusWindow, &s.m_bStatusWindow, "ステータスウインドウを表示する"),
        {"BGM", ComboOf(kIdBgm, &s.m_iBgm, TextRows(Database().ChoiceLabels(eDbList::Bgm)))},
        {nullptr, cSoundPreviewDesc{kIdBgmPlay, eDbList::Bgm, kIdBgm}, nullptr, nullptr, true},
        CheckRow(kIdBgmLoop, &s.m_bBgmLoop, "ループ再生"),
        CheckRow(kIdBgmKeep, &s.m_bBgmKeep, "ステージのBGMが変わらないなら再生し直さない"),
        FormGroup("背景", {RecordListRows(kBackIds)}),
        CheckRow(kIdSkipClearWait, &s.m_bSkipClearWait,
                 "ステージクリアの後、決定キーの入力を待たずにシーンの切り替えを行う　※ただし、ランキングへ登録できなくなる"),
        FormGroup("ストック",
                  {
                      CheckRow(kIdStockLoad, &s.m_bStockLoad, "ステージ開始前、ストックからステータスを継承"),
                      CheckRow(kIdStockSave, &s.m_bStockSave, "ステージクリア後、ストックへステータスを記憶"),
                  }),
        FormGroup("文字画像の表示",
                  {
                      CheckRow(kIdShowStageNo, &s.m_bShowStageNo, "STAGE X\n(テストプレイでは無効)"),
                      CheckRow(kIdShowReady, &s.m_bShowReady, "READY\n(テストプレイでは無効)"),
                      CheckRow(kIdShowClear, &s.m_bShowClear, "CLEAR！"),
                      CheckRow(kIdShowGameOver, &s.m_bShowGameOver, "GAMEOVER"),
                  }),
        FormGroup("ランキング", RepeatRows(kRankItemCount, [this](int item) {
                    return std::vector<cFormRow>{CheckRow(kIdRankItem + item, &m_aRank[static_cast<size_t>(item)],
                                                          kRankLabels[item])};
                  })),
    };
  }

  // The figures are for the size in the fields, against memory free of
  // any history.
  void ShowMemoryFigures() {
    const cHistoryMemory memory = HistoryMemoryFigures(static_cast<int>(ShownValue(kIdWidth)),
                                                       static_cast<int>(ShownValue(kIdHeight)));
    SetItemText(kIdMemoryFigures, WithoutCarriageReturns(memory.figures));
    SetItemText(kIdUndoDrop, memory.warning);
  }

  void ShowScrollLimit(int edge) {
    const bool on = IsChecked(kIdScrollOn + edge);
    EnableControl(kIdScrollLimit + edge, on);
    std::string text;
    if (on) {
      const int hidden = HiddenWidth(static_cast<eScrollEdge>(edge), static_cast<int>(ShownValue(kIdScrollLimit + edge)),
                                     static_cast<int>(ShownValue(kIdWidth)), static_cast<int>(ShownValue(kIdHeight)));
      AppendFormat(text, SysText("隠れる幅 %d(bl)"), hidden);
    }
    SetItemText(kIdHiddenWidth + edge, text);
  }

  int32_t m_nWidth;
  int32_t m_nHeight;
  std::array<int32_t, kRankItemCount> m_aRank{};
  std::vector<cStageBack> m_vecBack;
  cRecordListEdit<cStageBack> m_backList;
};

}  // namespace

std::unique_ptr<cDialog> MakeBasicPage(cDialogManager& manager, cStage& stage) {
  return std::make_unique<cBasicPage>(manager, stage);
}

}  // namespace velmora
