#include "core/OptionLists.h"

#include <map>

namespace velmora {
namespace {

// Levels 1 to 10 limit the speed to 60 times the level; nine more levels
// follow, all at the limit of 600.
std::vector<std::string> HitLevels() {
  std::vector<std::string> levels;
  for (int level = 1; level <= 10; ++level) {
    levels.push_back("レベル" + std::to_string(level) + " (速度制限=" + std::to_string(level * 60) + ")");
  }
  for (int level = 1; level <= 9; ++level) levels.push_back("レベル" + std::to_string(level) + " (速度制限=600)");
  return levels;
}

const std::map<eOptionList, std::vector<std::string>>& Lists() {
  static const std::map<eOptionList, std::vector<std::string>> lists = {
      {eOptionList::OldStageHandling,
       {"旧バージョンのステージファイルを「old_ver」フォルダへ移動", "旧バージョンのステージファイルをそのまま残す",
        "旧バージョンのステージファイルを削除"}},
      {eOptionList::ScrollType, {"主人公の位置に合わせてスクロール", "オートスクロール"}},
      {eOptionList::HorizontalExtension, {"右方向へ拡張（または右を削除）", "左方向へ拡張（または左を削除）"}},
      {eOptionList::VerticalExtension, {"下方向へ拡張（または下を削除）", "上方向へ拡張（または上を削除）"}},
      {eOptionList::HitLevel, HitLevels()},
      {eOptionList::SpeedLevel,
       {"最大 (当たり判定レベルと同じ)", "1 (対応速度=60)", "2 (対応速度=最大120)", "3 (対応速度=最大180)",
        "4 (対応速度=最大240)", "5 (対応速度=最大300)"}},
      {eOptionList::PositionA, {"中央", "下"}},
      {eOptionList::PositionB, {"中", "下"}},
      {eOptionList::Display, {"表示しない", "表示する", "枠のみ表示"}},
      {eOptionList::Colour, {"赤", "緑", "青", "黄", "赤紫", "青紫", "黒", "虹"}},
      {eOptionList::WheelDirection, {"水平方向", "垂直方向"}},
  };
  return lists;
}

}  // namespace

const std::vector<std::string>& OptionList(eOptionList list) { return Lists().at(list); }

}  // namespace velmora
