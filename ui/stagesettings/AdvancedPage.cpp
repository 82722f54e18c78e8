#include "ui/controls/ComboRows.h"
#include "ui/stagesettings/StageSettingsIds.h"
#include "ui/stagesettings/StageSettingsPage.h"

namespace velmora {
namespace {

constexpr int kMinFrameRate = 30;
constexpr int kMaxFrameRate = 120;
constexpr int kMaxMargin = 99;
constexpr int kEdges = 4;

struct cVanishEdge {
  const char* before;  // beside the box
  const char* after;   // behind the margin
  int32_t cAutoVanish::*on;
  int32_t cAutoVanish::*margin;
};

constexpr cVanishEdge kVanishEdges[kEdges] = {
    {"画面左端＋", "(bl)より左なら消滅", &cAutoVanish::m_bLeft, &cAutoVanish::m_iLeft},
    {"画面右端＋", "(bl)より右なら消滅", &cAutoVanish::m_bRight, &cAutoVanish::m_iRight},
    {"画面上端＋", "(bl)より上なら消滅", &cAutoVanish::m_bTop, &cAutoVanish::m_iTop},
    {"画面下端＋", "(bl)より下なら消滅", &cAutoVanish::m_bBottom, &cAutoVanish::m_iBottom},
};

// In the order of the stage's auto-vanish records.
constexpr const char* kVanishKinds[kVanishCount] = {"敵(非ブロック)", "敵(ブロック)", "アイテム", "主人公のショット",
                                                    "敵のショット"};

int VanishRow(int kind, int edge) { return kind * kEdges + edge; }

// Page 2 (241) "高度な設定": frame rate, hit levels, Z and the margins at
// which objects off the screen vanish by themselves.
class cAdvancedPage : public cStageSettingsPage {
 public:
  cAdvancedPage(cDialogManager& manager, cStage& stage) : cStageSettingsPage(manager, stage, "stage settings 2") {
    cStage& s = Stage();
    m_form.rows = {
        {"フレームレート", SpinEdit(kIdFrameRate, &s.m_iFrameRate, kMinFrameRate, kMaxFrameRate), nullptr,
         "※「60」を推奨。\n※Direct3D使用時は垂直同期(System.iniの「VSync」)が有効だと「60」で固定される。"},
        {"当たり判定レベル", ComboOf(kIdHitLevel, &s.m_iHitLevel, OptionRows(eOptionList::HitLevel, 1)), nullptr,
         "※「レベル10」以外での動作は無保障（詳細はヘルプを参照）"},
        {"キャラ対ショットの当たり判定精度",
         ComboOf(kIdShotHitLevel, &s.m_iShotHitLevel, OptionRows(eOptionList::SpeedLevel)), nullptr,
         "※「最大」以外での動作は無保障（詳細はヘルプを参照）"},
        NoteRow("※「キャラ対ショットの当たり判定精度」が「当たり判定レベル」を超えないようにして下さい。\n"
                "　 「当たり判定レベル」 ÷ 「キャラ対ショットの当たり判定精度」　が割り切れるようにして下さい。"),
        // The page is wide enough for these in one line.
        {nullptr, cCheckDesc{kIdUseZ, &s.m_bUseZ,
                             "キャラ・アイテム・ショット・ソードの「Z座標」を有効にする（OFFにすると実行速度が上がります）"}},
        {nullptr, cCheckDesc{kIdNoDamageOffscreen, &s.m_bNoDamageOffscreen,
                             "画面外ではダメージを受けない（OFFにすると実行速度が大幅に落ちます）"}},
        FormGroup("自動消滅", {FormColumns({{VanishGroup(0), VanishGroup(1), VanishGroup(2)},
                                             {VanishGroup(3), VanishGroup(4)}})}),
    };
  }

 protected:
  void UpdateEnables() override {
    for (int row = 0; row < kVanishCount * kEdges; ++row) EnableControl(kIdVanishMargin + row, IsChecked(kIdVanishOn + row));
  }

 private:
  cFormRow VanishGroup(int kind) {
    cAutoVanish& vanish = Stage().m_aAutoVanish[static_cast<size_t>(kind)];
    return FormGroup(kVanishKinds[kind], RepeatRows(kEdges, [kind, &vanish](int edge) {
                       const cVanishEdge& e = kVanishEdges[edge];
                       const int row = VanishRow(kind, edge);
                       return std::vector<cFormRow>{
                           {nullptr, cCheckDesc{kIdVanishOn + row, &(vanish.*e.on), e.before}},
                           {nullptr, SpinEdit(kIdVanishMargin + row, &(vanish.*e.margin), 0, kMaxMargin), nullptr, e.after,
                            true},
                       };
                     }));
  }
};

}  // namespace

std::unique_ptr<cDialog> MakeAdvancedPage(cDialogManager& manager, cStage& stage) {
  return std::make_unique<cAdvancedPage>(manager, stage);
}

}  // namespace velmora
