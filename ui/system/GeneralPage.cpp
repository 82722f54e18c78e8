#include "project/SystemLabels.h"
#include "ui/controls/Combo.h"
#include "ui/controls/ComboRows.h"
#include "ui/framework/QtText.h"
#include "ui/system/FontPreview.h"
#include "ui/system/SystemPage.h"
#include "ui/system/SystemPageIds.h"
#include "ui/system/SystemPages.h"

namespace velmora {
namespace {

constexpr int kTitleChars = 30;

QWidget* MakePreview(QWidget* parent) { return new cFontPreview(parent); }

// Page 1 (248): the title, the general rules, the font with its preview,
// replays and effects.
class cGeneralPage : public cSystemPage {
 public:
  cGeneralPage(cDialogManager& manager, cEdSystem& work) : cSystemPage(manager, work, "system 1") {
    cEdSystem& s = Work();
    SetRows({
        FormGroup("タイトル",
                  {
                      {"ゲームタイトル", CharsEdit(kIdGameTitle, &s.m_strGameTitle, kTitleChars)},
                      CheckRow(kIdTitleImage, &s.m_bTitleImage,
                               "タイトル画面では画像を表示\n画像のパスは「bmp\\GameMode.bmp」"),
                      CheckRow(kIdAutoSaveStart, &s.m_bAutoSaveStart,
                               "「はじめから」では保存先のファイルを選択してからオートセーブONでゲーム開始"),
                  }),
        FormGroup("全般",
                  {
                      CheckRow(kIdPause, &s.m_bPause, "スペースキーでポーズ（一時停止してメニューを呼び出す）"),
                      CheckRow(kIdPauseHideObjects, &s.m_bPauseHideObjects, "ポーズ中に配置物を表示しない"),
                      CheckRow(kIdSymbols, &s.m_bSymbols, "シンボル画像の表示に対応"),
                      CheckRow(kId1UpOnClear, &s.m_b1UpOnClear, "ステージクリア時に1UP処理をする"),
                      {"スコア", SpinEdit(kId1UpScore, &s.m_i1UpScore, 1, 999999), nullptr, "につき1UP"},
                      CheckRow(kIdTestFlowAlways, &s.m_bTestFlowAlways,
                               "テストプレイでなくてもテストプレイ専用フローを有効にする"),
                      {"キャラの描画タイプ", ComboOf(kIdCharaDraw, &s.m_iCharaDraw, LabelRows(CharaDrawTable))},
                  }),
        FormGroup("フォント",
                  {
                      {"フォント", ComboOf(kIdFont, &s.m_iFont, LabelRows(SystemFontTable)), nullptr,
                       "※「ＭＳ Ｐゴシック」を推奨"},
                      {nullptr, cCustomDesc{kIdFontPreview, MakePreview}},
                      CheckRow(kIdEvenPitch, &s.m_bEvenPitch, "文字間を均一にする"),
                  }),
        FormGroup("リプレイ",
                  {
                      CheckRow(kIdReplaySave, &s.m_bReplaySave, "リプレイの保存を許可する"),
                      CheckRow(kIdReplayManual, &s.m_bReplayManual, "F1・F2キーによるリプレイの手動保存を許可する"),
                      {"リプレイファイル名の構成",
                       ComboOf(kIdReplayFileName, &s.m_iReplayFileName, LabelRows(ReplayFileNameTable))},
                      CheckRow(kIdOldFileDialog, &s.m_bOldFileDialog,
                               "リプレイの選択に以前のファイル選択ダイアログを使う"),
                  }),
        FormGroup("エフェクト",
                  {
                      CheckRow(kIdDeathEffect, &s.m_bDeathEffect,
                               "「ステータスの操作」や「コードの実行」コマンドによってキャラが死亡するとき、"
                               "死亡エフェクトを実行し、死亡時の効果音も再生する"),
                      CheckRow(kIdInvincibleEffect, &s.m_bInvincibleEffect, "無敵エフェクトを実行する"),
                      {"エフェクトの速度", SpinEdit(kIdEffectSpeed, &s.m_iEffectSpeed, 1, 32)},
                      CheckRow(kIdColorAnime, &s.m_bColorAnime,
                               "画面が256色(8bit)のとき、カラーアニメ（無敵色の変化）を実行する"),
                  }),
    });
  }

 protected:
  // The preview follows the face that the list shows, chosen or stored.
  void UpdateEnables() override {
    const cCombo* font = FindControlOf<cCombo>(kIdFont);
    auto* preview = dynamic_cast<cFontPreview*>(Item(kIdFontPreview));
    if (font && preview) preview->ShowFace(FromCp932(SystemFontTable.Label(font->SelectedValue())));
  }
};

}  // namespace

std::unique_ptr<cDialog> MakeGeneralPage(cDialogManager& manager, cEdSystem& work) {
  return std::make_unique<cGeneralPage>(manager, work);
}

}  // namespace velmora
