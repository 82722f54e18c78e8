#include <cstdio>
#include <deque>
#include <string>

#include "core/OptionLists.h"
#include "ui/controls/ComboRows.h"
#include "ui/stagesettings/StageSettingsIds.h"
#include "ui/stagesettings/StageSettingsPage.h"

namespace velmora {
namespace {

constexpr int kNoPlace = -1;
constexpr int kLargeBox = 32;
constexpr int kSmallBox = 16;

// One width x height pair of a hit box, with the default that its label
// names, and where the box sits when it has a place.
struct cHitBoxRow {
  const char* group;
  const char* label;
  int32_t cStage::*width;
  int32_t cStage::*height;
  int32_t cStage::*place;
  int defaultWidth;
  int defaultHeight;
  int defaultPlace;
  int maximum;
};

using S = cStage;
constexpr cHitBoxRow kHitBoxes[] = {
    {"主人公", "歩行時：対ブロック", &S::m_iHitPlWalkBlockW, &S::m_iHitPlWalkBlockH, &S::m_iPosPlWalkBlock, 16, 24, 1, kLargeBox},
    {"主人公", "飛行時：対ブロック", &S::m_iHitPlFlyBlockW, &S::m_iHitPlFlyBlockH, &S::m_iPosPlFlyBlock, 16, 16, 0, kLargeBox},
    {"主人公", "歩行時：対キャラ", &S::m_iHitPlWalkCharaW, &S::m_iHitPlWalkCharaH, &S::m_iPosPlWalkChara, 16, 24, 1, kLargeBox},
    {"主人公", "飛行時：対キャラ", &S::m_iHitPlFlyCharaW, &S::m_iHitPlFlyCharaH, &S::m_iPosPlFlyChara, 16, 16, 0, kLargeBox},
    {"主人公", "対アイテム", &S::m_iHitPlItemW, &S::m_iHitPlItemH, nullptr, 16, 16, kNoPlace, kLargeBox},
    {"主人公", "対ショット", &S::m_iHitPlShotW, &S::m_iHitPlShotH, nullptr, 12, 8, kNoPlace, kLargeBox},
    {"敵", "歩行時：対ブロック", &S::m_iHitEnWalkBlockW, &S::m_iHitEnWalkBlockH, &S::m_iPosEnWalkBlock, 16, 24, 1, kLargeBox},
    {"敵", "飛行時：対ブロック", &S::m_iHitEnFlyBlockW, &S::m_iHitEnFlyBlockH, &S::m_iPosEnFlyBlock, 16, 16, 0, kLargeBox},
    {"敵", "歩行時：対キャラ", &S::m_iHitEnWalkCharaW, &S::m_iHitEnWalkCharaH, &S::m_iPosEnWalkChara, 12, 24, 1, kLargeBox},
    {"敵", "飛行時：対キャラ", &S::m_iHitEnFlyCharaW, &S::m_iHitEnFlyCharaH, &S::m_iPosEnFlyChara, 12, 16, 0, kLargeBox},
    {"敵", "対ショット", &S::m_iHitEnShotW, &S::m_iHitEnShotH, nullptr, 30, 30, kNoPlace, kLargeBox},
    {"アイテム", "対キャラ", &S::m_iHitItemCharaW, &S::m_iHitItemCharaH, nullptr, 28, 28, kNoPlace, kLargeBox},
    {"主人公のショット", "対キャラ", &S::m_iHitPlShotCharaW, &S::m_iHitPlShotCharaH, nullptr, 16, 16, kNoPlace, kSmallBox},
    {"主人公のショット", "対ショット", &S::m_iHitPlShotShotW, &S::m_iHitPlShotShotH, nullptr, 16, 16, kNoPlace, kSmallBox},
    {"敵のショット", "対キャラ", &S::m_iHitEnShotCharaW, &S::m_iHitEnShotCharaH, nullptr, 16, 16, kNoPlace, kSmallBox},
    {"敵のショット", "対ショット", &S::m_iHitEnShotShotW, &S::m_iHitEnShotShotH, nullptr, 16, 16, kNoPlace, kSmallBox},
};
constexpr int kHitBoxCount = static_cast<int>(std::size(kHitBoxes));

// How the player's boxes show in a test play: the display and its colour.
struct cHitShowRow {
  const char* label;
  int32_t cStage::*show;
  int32_t cStage::*colour;
};

constexpr cHitShowRow kHitShows[] = {
    {"対ブロック", &S::m_iShowHitBlock, &S::m_iColorHitBlock},
    {"対キャラ", &S::m_iShowHitChara, &S::m_iColorHitChara},
    {"対アイテム", &S::m_iShowHitItem, &S::m_iColorHitItem},
    {"対ショット", &S::m_iShowHitShot, &S::m_iColorHitShot},
};
constexpr int kHitShowCount = static_cast<int>(std::size(kHitShows));

// The label with the default in it, in UTF-8.
std::string DefaultedLabel(const cHitBoxRow& row) {
  char numbers[64];
  if (row.place) {
    const std::string& place = OptionList(eOptionList::PositionA).at(static_cast<size_t>(row.defaultPlace));
    std::snprintf(numbers, sizeof numbers, " (%d,%d,%s)", row.defaultWidth, row.defaultHeight, place.c_str());
  } else {
    std::snprintf(numbers, sizeof numbers, " (%d,%d)", row.defaultWidth, row.defaultHeight);
  }
  return row.label + std::string(numbers);
}

// Page 3 (242) "高度な設定2": the sizes of the hit boxes, and how the
// player's boxes show in a test play. Even sizes are asked for, not
// enforced: the game has always taken odd ones as they are.
class cHitBoxPage : public cStageSettingsPage {
 public:
  cHitBoxPage(cDialogManager& manager, cStage& stage) : cStageSettingsPage(manager, stage, "stage settings 3") {
    m_form.rows = {
        NoteRow("＜説明＞\nそれぞれ「横」×「縦」の形式で設定します。( )内の値はデフォルト値です。"),
        FormGroup("当たり判定範囲", {FormColumns({{BoxGroup(0), ShowGroup(), BoxGroup(11)},
                                                  {BoxGroup(6), BoxGroup(12), BoxGroup(14)}})}),
        NoteRow("※必ず偶数値にして下さい。"),
    };
  }

 protected:
  void UpdateEnables() override {
    for (int row = 0; row < kHitShowCount; ++row) EnableControl(kIdHitColour + row, ShownRow(kIdHitShow + row) != 0);
  }

 private:
  // The rows from `first` on that share its group, in a frame of it.
  cFormRow BoxGroup(int first) {
    std::vector<cFormRow> rows;
    for (int row = first; row < kHitBoxCount && kHitBoxes[row].group == kHitBoxes[first].group; ++row) {
      const std::vector<cFormRow> box = BoxRows(row);
      rows.insert(rows.end(), box.begin(), box.end());
    }
    return FormGroup(kHitBoxes[first].group, std::move(rows));
  }

  std::vector<cFormRow> BoxRows(int index) {
    cStage& s = Stage();
    const cHitBoxRow& row = kHitBoxes[index];
    // A deque keeps the texts in place while more are added; the rows
    // hold pointers to them.
    const char* label = m_labels.emplace_back(DefaultedLabel(row)).c_str();
    std::vector<cFormRow> rows = {
        {label, SpinEdit(kIdHitWidth + index, &(s.*row.width), 1, row.maximum), nullptr, "×"},
        {nullptr, SpinEdit(kIdHitHeight + index, &(s.*row.height), 1, row.maximum), nullptr, nullptr, true},
    };
    if (row.place) {
      rows.push_back({nullptr, ComboOf(kIdHitPlace + index, &(s.*row.place), OptionRows(eOptionList::PositionA)),
                      nullptr, nullptr, true});
    }
    return rows;
  }

  cFormRow ShowGroup() {
    cStage& s = Stage();
    return FormGroup("テストプレイ時の表示", RepeatRows(kHitShowCount, [&s](int index) {
                       const cHitShowRow& row = kHitShows[index];
                       return std::vector<cFormRow>{
                           {row.label, ComboOf(kIdHitShow + index, &(s.*row.show), OptionRows(eOptionList::Display))},
                           {nullptr, ComboOf(kIdHitColour + index, &(s.*row.colour), OptionRows(eOptionList::Colour)),
                            nullptr, nullptr, true},
                       };
                     }));
  }

  std::deque<std::string> m_labels;
};

}  // namespace

std::unique_ptr<cDialog> MakeHitBoxPage(cDialogManager& manager, cStage& stage) {
  return std::make_unique<cHitBoxPage>(manager, stage);
}

}  // namespace velmora
