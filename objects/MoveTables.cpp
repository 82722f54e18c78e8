#include "objects/MoveTables.h"

namespace velmora {
namespace {

const char* const kMoveAim[] = {"方向で指定", "目標座標で指定"};
const char* const kWarpAim[] = {"方向と距離で指定",
                                "ターゲット1からの方向と距離で指定",
                                "ターゲット2からの方向と距離で指定",
                                "ターゲット3からの方向と距離で指定",
                                "ターゲット4からの方向と距離で指定",
                                "目標座標で指定"};
const char* const kDir[] = {"前", "後", "左", "右", "前Y", "後Y", "上", "下", "左上", "左下", "右上", "右下", "入力方向"};
const char* const kTargetType[] = {"配置位置からの相対座標", "相対座標", "絶対座標", "画面座標"};
const char* const kBlDot[] = {"(bl)で指定", "(dot)で指定"};
const char* const kHblDot[] = {"(hbl)で指定", "(dot)で指定"};
const char* const kTarget4[] = {"ターゲット1", "ターゲット2", "ターゲット3", "ターゲット4"};
const char* const kRotate[] = {"右回り", "左回り", "左向きなら右回り、右向きなら左回り",
                               "左向きなら左回り、右向きなら右回り"};
const char* const kMoveAnime[] = {"移動アニメ", "静止アニメ", "その他"};
const char* const kTimeSpeedDist[] = {"時間と速度を指定", "時間と距離を指定", "速度と距離を指定"};
const char* const kTimeSpeed[] = {"時間を指定", "速度を指定"};
const char* const kFormation[] = {"直進A", "直進B", "拡散", "落雷", "爆発", "包囲"};
const char* const kAimObject[] = {"ターゲット", "主人公", "自分"};
const char* const kShotMove[] = {"直進",
                                 "主人公を狙う",
                                 "近いキャラを狙う",
                                 "ターゲットを狙う",
                                 "主人公へ誘導",
                                 "近いキャラへ誘導（対象死亡時、誘導を無効化）",
                                 "ターゲットへ誘導",
                                 "近いキャラへ誘導（対象死亡時、対象を変更）",
                                 "ウェーブ",
                                 "落下"};
const char* const kSummonBlock[] = {"ブロックを召喚", "ブロックを消す", "ブロックがなければ召喚、ブロックがあれば消す"};
const char* const kSummonPalette[] = {"コモンパレット", "ステージパレット"};
const char* const kSummonForce[] = {"パレットの設定に準ずる", "使用者と同じ", "番号で指定"};

constexpr cParamDef kNone{};
constexpr cParamDef kGap{"間隔(hbl)", 0, 40, 0};
constexpr cParamDef kCourse{"軌道変更(hbl)", 0, 40, 0};
constexpr cParamDef kForce{"対象勢力", 0, 7, 0};
constexpr cParamDef kHomingStart{"誘導開始(hbl)", 0, 40, 0};
constexpr cParamDef kHomingEnd{"誘導終了(hbl)", 0, 999, 999};

const cParamTriple kFormationParams[] = {
    {kGap, kNone, kNone},
    {kGap, kNone, kNone},
    {cParamDef{"角度", 0, 180, 30}, kNone, kNone},
    {kGap, cParamDef{"列の数", 1, 50, 1}, cParamDef{"列の間隔(hbl)", 0, 40, 0}},
    {kNone, kNone, kNone},
    {cParamDef{"距離(hbl)", 0, 40, 6}, kNone, kNone},
};

const cParamTriple kShotMoveParams[] = {
    {kNone, kNone, kNone},
    {kCourse, kNone, kNone},
    {kCourse, kForce, kNone},
    {kCourse, kNone, kNone},
    {kHomingStart, kHomingEnd, kNone},
    {kHomingStart, kHomingEnd, kForce},
    {kHomingStart, kHomingEnd, kNone},
    {kHomingStart, kHomingEnd, kForce},
    {cParamDef{"波の最大(hbl)", 0, 100, 4}, cParamDef{"波の速度", 0, 100, 4}, cParamDef{"開始角度", 0, 359, 0}},
    {kCourse, kNone, kNone},
};

}  // namespace

const cLabelTable MoveAimTable{kMoveAim};
const cLabelTable WarpAimTable{kWarpAim};
const cLabelTable DirTable{kDir};
const cLabelTable TargetTypeTable{kTargetType};
const cLabelTable BlDotTable{kBlDot};
const cLabelTable HblDotTable{kHblDot};
const cLabelTable Target4Table{kTarget4};
const cLabelTable RotateTable{kRotate};
const cLabelTable MoveAnimeTable{kMoveAnime};
const cLabelTable TimeSpeedDistTable{kTimeSpeedDist};
const cLabelTable TimeSpeedTable{kTimeSpeed};
const cLabelTable FormationTable{kFormation};
const cLabelTable AimObjectTable{kAimObject};
const cLabelTable ShotMoveTable{kShotMove};
const cLabelTable SummonBlockTable{kSummonBlock};
const cLabelTable SummonPaletteTable{kSummonPalette};
const cLabelTable SummonForceTable{kSummonForce};
const std::span<const cParamTriple> FormationParamTable{kFormationParams};
const std::span<const cParamTriple> ShotMoveParamTable{kShotMoveParams};

}  // namespace velmora
