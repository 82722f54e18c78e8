#include "objects/CmdMoveRules.h"
#include "objects/CmdTable.h"
#include "objects/CondTables.h"
#include "objects/MoveTables.h"
#include "ui/commands/CmdForm.h"
#include "ui/commands/CmdIds.h"
#include "ui/commands/CmdRows.h"

// The moves, ウエイト, 移動の無効化 and ワープ: the kinds that own a cEdMove
// or have nothing but their time.
namespace velmora {
namespace {

constexpr int kAimByDir = 0;
constexpr int kDirFromInput = 12;  // 入力方向: no mirror image of it
constexpr int kFixedTargetType = 2;  // 絶対座標 and 画面座標 don't turn with the character
constexpr int kAnimeOther = 2;       // その他: the アニメ chosen below
constexpr int kWarpByCoord = 5;
constexpr int kSpeedLimit = 200;
constexpr int kCircleSpeedLimit = 180;
constexpr int kAngleLimit = 7200;
constexpr int kCoordLimit = 16383;
constexpr int kDotLimit = 640;
constexpr int kDistCloneLimit = 40;

const char* const kFlipByFacing = "右向き配置なら反転";

// ---- the pieces of the moves ----

bool UsesTime(const cCmdWork& w) { return w.move.m_nSetType != kSetSpeedDist; }
bool UsesSpeed(const cCmdWork& w) { return w.move.m_nSetType != kSetTimeDist; }
bool UsesDist(const cCmdWork& w) { return w.move.m_nSetType != kSetTimeSpeed; }
bool HasInertia(const cCmdWork& w) { return w.move.m_bInertia != 0; }
bool AnimeChosen(const cCmdWork& w) { return w.move.m_nAnimeKind == kAnimeOther; }

// 設定タイプ with the time, speed and distance it decides between, and
// the running ratio under them.
std::vector<cFormRow> TimingRows(cCmdWork& w) {
  cEdMove& m = w.move;
  std::vector<cFormRow> rows = {ComboRow("設定タイプ", kIdMoveSetType, &m.m_nSetType, LabelRows(TimeSpeedDistTable))};
  for (cFormRow& row : TimeRows(w, true)) rows.push_back(std::move(row));
  rows.push_back(NumberRow("速度", kIdMoveSpeed, &m.m_nSpeed, -kSpeedLimit, kSpeedLimit));
  rows.push_back(CloneRow(kIdMoveSpeedClone, &m.m_nSpeedClone, -kSpeedLimit, kSpeedLimit));
  rows.push_back(NumberRow("距離", kIdMoveDist, &m.m_nDist, 1, 64));
  rows.push_back(CloneRow(kIdMoveDistClone, &m.m_nDistClone, -kDistCloneLimit, kDistCloneLimit));
  rows.push_back(SameLine(ComboRow(nullptr, kIdMoveDistUnit, &m.m_nDistUnit, LabelRows(HblDotTable))));
  rows.push_back(NoteRow(kIdMoveRatio, ""));
  rows.push_back(NoteRow(kIdMoveRatioRule, ""));
  return rows;
}

const std::vector<cCmdEnable> kTimingEnables = {
    {kIdCmdTime, UsesTime},       {kIdCmdTimeClone, UsesTime},  {kIdMoveSpeed, UsesSpeed},
    {kIdMoveSpeedClone, UsesSpeed}, {kIdMoveDist, UsesDist},    {kIdMoveDistClone, UsesDist},
    {kIdMoveDistUnit, UsesDist},
};

std::string RatioLine(const cCmdWork& w) { return MoveRatioLines(w).ratio; }
std::string RatioRule(const cCmdWork& w) { return MoveRatioLines(w).rule; }
const std::vector<cCmdKindForm::cText> kRatioTexts = {{kIdMoveRatio, RatioLine}, {kIdMoveRatioRule, RatioRule}};
// With 時間と速度 there is no distance to reckon a ratio from.
const std::vector<cCmdKindForm::cShow> kRatioShows = {{{kIdMoveRatio, kIdMoveRatioRule}, UsesDist}};

std::vector<cFormRow> InertiaRows(cEdMove& m) {
  return {
      CheckRow(kIdMoveInertia, &m.m_bInertia, "慣性"),
      NumberRow("最大速度", kIdMoveMaxSpeed, &m.m_nMaxSpeed, 0, kSpeedLimit),
      {"方向転換時の速度修正", cEditValDesc{kIdMoveTurnRate, &m.m_dTurnRate, 0.0, 9.9, SpinOf(kIdMoveTurnRate), 0.1}},
  };
}

std::vector<cFormRow> AnimeRows(cCmdWork& w) {
  cFormRow anime = AnimeRow(w);
  anime.label = nullptr;
  return {ComboRow("アニメ", kIdMoveAnimeKind, &w.move.m_nAnimeKind, LabelRows(MoveAnimeTable)), SameLine(anime)};
}

// The enabling of every move but 直線移動, whose rules are its own: the
// inertia's two values follow its box, and the アニメ list matters for
// その他 only.
std::vector<cCmdEnable> MoveEnables() {
  return Joined(kTimingEnables, {{kIdMoveMaxSpeed, HasInertia}, {kIdMoveTurnRate, HasInertia}, {kIdCmdAnime, AnimeChosen}});
}

// The offset from the target of 突撃移動 and 誘導移動, in blocks and dots.
std::vector<cFormRow> TargetShiftRows(cEdMove& m) {
  return {
      NumberRow("目標のズレX(bl)", kIdMoveTargetX, &m.m_nTargetX, -kDotLimit, kDotLimit),
      SameLine(NumberRow("＋(dot)", kIdMoveTargetXDot, &m.m_nTargetXDot, -kDotLimit, kDotLimit)),
      SameLine(CheckRow(kIdMoveFlipX, &m.m_bFlipX, kFlipByFacing)),
      NumberRow("目標のズレY(bl)", kIdMoveTargetY, &m.m_nTargetY, -kDotLimit, kDotLimit),
      SameLine(NumberRow("＋(dot)", kIdMoveTargetYDot, &m.m_nTargetYDot, -kDotLimit, kDotLimit)),
      SameLine(CheckRow(kIdMoveFlipY, &m.m_bFlipY, kFlipByFacing)),
  };
}

cFormRow TargetNoRow(cEdMove& m) { return ComboRow("ターゲット", kIdMoveTargetNo, &m.m_nTargetNo, LabelRows(Target4Table)); }
cFormRow KeepDirRow(cEdMove& m) { return CheckRow(kIdMoveKeepDir, &m.m_bKeepDir, "キャラの向きを変えない"); }
std::vector<cFormRow> NoMoveRows(cEdMove& m) {
  return {CheckRow(kIdMoveNoMoveX, &m.m_bNoMoveX, "横方向の移動を無効化"),
          CheckRow(kIdMoveNoMoveY, &m.m_bNoMoveY, "縦方向の移動を無効化")};
}

bool AcceptRatio(const cCmdWork& w, OwnerWindow owner) { return AcceptMoveRatio(w, owner); }

// ---- ウエイト (207), 移動の無効化 (273) ----

std::vector<cFormRow> TimeOnlyRows(cCmdWork& w) { return TimeRows(w, true); }

// ---- 直線移動 (208), enabled by the rules stated for it and by no other ----

bool AimsByDir(const cCmdWork& w) { return w.move.m_nAimType == kAimByDir; }
bool AimsAtTarget(const cCmdWork& w) { return !AimsByDir(w); }
bool MirrorsAngle(const cCmdWork& w) { return AimsByDir(w) && w.move.m_nDir != kDirFromInput; }
bool UsesTargetX(const cCmdWork& w) { return AimsAtTarget(w) && w.move.m_bTargetX; }
bool UsesTargetY(const cCmdWork& w) { return AimsAtTarget(w) && w.move.m_bTargetY; }
bool FlipsTarget(const cCmdWork& w) { return AimsAtTarget(w) && w.move.m_nTargetType < kFixedTargetType; }

// A target on the stage or the screen doesn't turn with the character:
// its flips are cleared, when opening as after each change.
void ClearFixedTargetFlips(cCmdWork& w) {
  if (!AimsAtTarget(w) || w.move.m_nTargetType < kFixedTargetType) return;
  w.move.m_bFlipX = 0;
  w.move.m_bFlipY = 0;
}

std::vector<cFormRow> LineRows(cCmdWork& w) {
  cEdMove& m = w.move;
  return {FormColumns({
      {
          FormGroup("時間・速度・距離", TimingRows(w)),
          FormGroup("慣性", InertiaRows(m)),
          FormGroup("その他", {
              FormRows(NoMoveRows(m)),
              CheckRow(kIdMoveNoShake, &m.m_bNoShake, "ブレを防止"),
              KeepDirRow(m),
              FormRows(AnimeRows(w)),
          }),
      },
      {
          ComboRow("指定方法", kIdMoveAimType, &m.m_nAimType, LabelRows(MoveAimTable)),
          FormGroup("方向で指定", {
              ComboRow("方向", kIdMoveDir, &m.m_nDir, LabelRows(DirTable)),
              {"角度", cEditValDesc{kIdMoveAngle, &m.m_nAngle, -kAngleLimit, kAngleLimit, kIdMoveAngle + 2, 1}},
              SameLine({"＋分身値×", cEditValDesc{kIdMoveAngleClone, &m.m_nAngleClone, -kAngleLimit, kAngleLimit,
                                               SpinOf(kIdMoveAngleClone), 1}}),
              CheckRow(kIdMoveAngleMirror, &m.m_bAngleMirror, "右向き配置なら逆回転\n（左右対称になる）"),
              CheckRow(kIdMoveFlipOnTurn, &m.m_bFlipOnTurn,
                       "実行途中でキャラの向きが変わったら、速度を反転\r\n※向き固定時のみ有効"),
          }),
          FormGroup("目標座標で指定", {
              ComboRow("目標タイプ", kIdMoveTargetType, &m.m_nTargetType, LabelRows(TargetTypeTable)),
              SameLine(ComboRow(nullptr, kIdMoveTargetUnit, &m.m_nTargetUnit, LabelRows(BlDotTable))),
              CheckRow(kIdMoveUseTargetX, &m.m_bTargetX, "目標X"),
              SameLine(NumberRow(nullptr, kIdMoveTargetX, &m.m_nTargetX, -kCoordLimit, kCoordLimit)),
              SameLine(NumberRow("＋(dot)", kIdMoveTargetXDot, &m.m_nTargetXDot, -kDotLimit, kDotLimit)),
              SameLine(CheckRow(kIdMoveFlipX, &m.m_bFlipX, kFlipByFacing)),
              CheckRow(kIdMoveUseTargetY, &m.m_bTargetY, "目標Y"),
              SameLine(NumberRow(nullptr, kIdMoveTargetY, &m.m_nTargetY, -kCoordLimit, kCoordLimit)),
              SameLine(NumberRow("＋(dot)", kIdMoveTargetYDot, &m.m_nTargetYDot, -kDotLimit, kDotLimit)),
              SameLine(CheckRow(kIdMoveFlipY, &m.m_bFlipY, kFlipByFacing)),
              CheckRow(kIdMoveUntilTarget, &m.m_bUntilTarget,
                       "目標座標に着くまで実行\n※並列実行にしないと後続コマンドのアニメがズレる"),
          }),
      },
  })};
}

std::vector<cCmdEnable> LineEnables() {
  return Joined(kTimingEnables, {
      {kIdMoveDir, AimsByDir},           {kIdMoveFlipOnTurn, AimsByDir},    {kIdMoveAngleMirror, MirrorsAngle},
      {kIdMoveTargetType, AimsAtTarget}, {kIdMoveTargetUnit, AimsAtTarget}, {kIdMoveUseTargetX, AimsAtTarget},
      {kIdMoveUseTargetY, AimsAtTarget}, {kIdMoveUntilTarget, AimsAtTarget}, {kIdMoveTargetX, UsesTargetX},
      {kIdMoveTargetXDot, UsesTargetX},  {kIdMoveTargetY, UsesTargetY},     {kIdMoveTargetYDot, UsesTargetY},
      {kIdMoveFlipX, FlipsTarget},       {kIdMoveFlipY, FlipsTarget},
  });
}

// ---- 地上折り返し移動 (259) ----

std::vector<cFormRow> GroundTurnRows(cCmdWork& w) {
  return {FormGroup("時間・速度・距離", TimingRows(w)), FormGroup("慣性", InertiaRows(w.move)), FormRows(AnimeRows(w))};
}

// ---- 円移動 (260): the distance is the end angle, the parameters the radius ----

bool CircleByTime(const cCmdWork& w) { return w.move.m_nSetType == 0; }
bool CircleBySpeed(const cCmdWork& w) { return !CircleByTime(w); }

std::vector<cFormRow> CircleRows(cCmdWork& w) {
  cEdMove& m = w.move;
  return {
      ComboRow("回転方向", kIdMoveDir, &m.m_nDir, LabelRows(RotateTable)),
      {"開始角度", cEditValDesc{kIdMoveAngle, &m.m_nAngle, -kAngleLimit, kAngleLimit, kIdMoveAngle + 2, 1}},
      CloneRow(kIdMoveAngleClone, &m.m_nAngleClone, -kAngleLimit, kAngleLimit),
      NumberRow("終了角度", kIdMoveDist, &m.m_nDist, -kAngleLimit, kAngleLimit),
      CloneRow(kIdMoveDistClone, &m.m_nDistClone, -kAngleLimit, kAngleLimit),
      NumberRow("半径(hbl)", kIdMoveParam1, &m.m_nParam1, 0, 20),
      CloneRow(kIdMoveParam2, &m.m_nParam2, -20, 20),
      ComboRow("設定タイプ", kIdMoveSetType, &m.m_nSetType, LabelRows(TimeSpeedTable)),
      FormRows(TimeRows(w, true)),
      NumberRow("速度(増加角度)", kIdMoveSpeed, &m.m_nSpeed, -kCircleSpeedLimit, kCircleSpeedLimit),
      CloneRow(kIdMoveSpeedClone, &m.m_nSpeedClone, -kCircleSpeedLimit, kCircleSpeedLimit),
      CheckRow(kIdMoveFlipX, &m.m_bFlipX, "右向き配置なら逆回転、開始・終了角度＋180度"),
      CheckRow(kIdMoveFlipY, &m.m_bFlipY, "右向き配置なら逆回転"),
      FormRows(NoMoveRows(m)),
      KeepDirRow(m),
      FormRows(AnimeRows(w)),
  };
}

// ---- 突撃移動 (261), 誘導移動 (214), 画面外回避移動 (262) ----

std::vector<cFormRow> ChargeRows(cCmdWork& w) {
  cEdMove& m = w.move;
  return {FormColumns({
      {
          TargetNoRow(m),
          FormRows(TargetShiftRows(m)),
          {"角度", cEditValDesc{kIdMoveAngle, &m.m_nAngle, -kAngleLimit, kAngleLimit, kIdMoveAngle + 2, 1}},
          CloneRow(kIdMoveAngleClone, &m.m_nAngleClone, -kAngleLimit, kAngleLimit),
          CheckRow(kIdMoveAngleMirror, &m.m_bAngleMirror, "右向き配置なら逆回転\n（左右対称になる）"),
          FormRows(NoMoveRows(m)),
          KeepDirRow(m),
          FormRows(AnimeRows(w)),
      },
      {FormGroup("時間・速度・距離", TimingRows(w)), FormGroup("慣性", InertiaRows(m))},
  })};
}

std::vector<cFormRow> HomingRows(cCmdWork& w) {
  cEdMove& m = w.move;
  return {FormColumns({
      {
          TargetNoRow(m),
          FormRows(TargetShiftRows(m)),
          NumberRow("誘導精度の悪さ", kIdMoveParam1, &m.m_nParam1, 0, 10),
          CloneRow(kIdMoveParam2, &m.m_nParam2, 0, 10),
          FormRows(NoMoveRows(m)),
          CheckRow(kIdMoveNoShake, &m.m_bNoShake, "ブレを防止"),
          KeepDirRow(m),
          FormRows(AnimeRows(w)),
      },
      {FormGroup("時間・速度・距離", TimingRows(w)), FormGroup("慣性", InertiaRows(m))},
  })};
}

std::vector<cFormRow> AvoidRows(cCmdWork& w) {
  cEdMove& m = w.move;
  return {
      ComboRow("方向", kIdMoveDir, &m.m_nDir, LabelRows(DirTable)),
      FormGroup("時間・速度・距離", TimingRows(w)),
      FormGroup("慣性", InertiaRows(m)),
      KeepDirRow(m),
      FormRows(AnimeRows(w)),
  };
}

// ---- ワープ (264): by a direction and a distance, or to a point ----

bool WarpsByDir(const cCmdWork& w) { return w.move.m_nAimType < kWarpByCoord; }
bool WarpsToPoint(const cCmdWork& w) { return !WarpsByDir(w); }
bool WarpsToX(const cCmdWork& w) { return WarpsToPoint(w) && w.move.m_bTargetX; }
bool WarpsToY(const cCmdWork& w) { return WarpsToPoint(w) && w.move.m_bTargetY; }

std::vector<cFormRow> WarpRows(cCmdWork& w) {
  cEdMove& m = w.move;
  return {
      ComboRow("指定方法", kIdMoveAimType, &m.m_nAimType, LabelRows(WarpAimTable)),
      FormGroup("方向と距離で指定", {
          ComboRow("方向", kIdMoveDir, &m.m_nDir, LabelRows(DirTable)),
          NumberRow("距離(hbl)", kIdMoveDist, &m.m_nDist, 0, 64),
          CloneRow(kIdMoveDistClone, &m.m_nDistClone, -kDistCloneLimit, kDistCloneLimit),
      }),
      FormGroup("目標座標で指定", {
          ComboRow("座標タイプ", kIdMoveTargetType, &m.m_nTargetType, LabelRows(CoordTypeTable)),
          SameLine(ComboRow(nullptr, kIdMoveTargetUnit, &m.m_nTargetUnit, LabelRows(BlDotTable))),
          ComboRow("巨大化キャラの座標位置", kIdMoveWarpOrigin, &m.m_nWarpOrigin, LabelRows(GiantPosTable)),
          CheckRow(kIdMoveUseTargetX, &m.m_bTargetX, "目標X"),
          SameLine(NumberRow(nullptr, kIdMoveTargetX, &m.m_nTargetX, -kCoordLimit, kCoordLimit)),
          SameLine(NumberRow("＋(dot)", kIdMoveTargetXDot, &m.m_nTargetXDot, -kDotLimit, kDotLimit)),
          CheckRow(kIdMoveUseTargetY, &m.m_bTargetY, "目標Y"),
          SameLine(NumberRow(nullptr, kIdMoveTargetY, &m.m_nTargetY, -kCoordLimit, kCoordLimit)),
          SameLine(NumberRow("＋(dot)", kIdMoveTargetYDot, &m.m_nTargetYDot, -kDotLimit, kDotLimit)),
      }),
      CheckRow(kIdMoveFlipX, &m.m_bFlipX, "右向き配置なら反転（横）"),
      CheckRow(kIdMoveFlipY, &m.m_bFlipY, "右向き配置なら反転（縦）"),
  };
}

const std::vector<cCmdEnable> kWarpEnables = {
    {kIdMoveDir, WarpsByDir},           {kIdMoveDist, WarpsByDir},           {kIdMoveDistClone, WarpsByDir},
    {kIdMoveTargetType, WarpsToPoint},  {kIdMoveTargetUnit, WarpsToPoint},   {kIdMoveWarpOrigin, WarpsToPoint},
    {kIdMoveUseTargetX, WarpsToPoint},  {kIdMoveUseTargetY, WarpsToPoint},   {kIdMoveTargetX, WarpsToX},
    {kIdMoveTargetXDot, WarpsToX},      {kIdMoveTargetY, WarpsToY},          {kIdMoveTargetYDot, WarpsToY},
};

const cCmdKindForm kForms[] = {
    {.kind = kCmdWait, .rules = {.rows = TimeOnlyRows}},
    {.kind = kCmdLine,
     .rules = {.rows = LineRows,
               .enables = LineEnables(),
               .follow = [](cCmdWork& w, const cCmdWork&) { ClearFixedTargetFlips(w); }},
     .open = ClearFixedTargetFlips,
     .accept = AcceptRatio,
     .texts = kRatioTexts,
     .shows = kRatioShows},
    // Where the list of the family's dialogs and the field list of the move
    // record differ on what a kind shows, the record's own marks decide.
    // The dialogs' list names 設定タイプ, speed, distance, inertia and アニメ
    // here; the record marks also the clone values, the distance's unit,
    // 最大速度 and 方向転換時の速度修正 for this kind.
    {.kind = kCmdGroundTurn,
     .rules = {.rows = GroundTurnRows, .enables = MoveEnables()},
     .accept = AcceptRatio,
     .texts = kRatioTexts,
     .shows = kRatioShows},
    // Set by time or by speed, it has no ratio to keep. The dialogs' list
    // names 回転方向, the two angles, 半径 and the speed; the record marks
    // also their clone values, 設定タイプ, the boxes of the axes, the flips
    // and the facing, and the アニメ.
    {.kind = kCmdCircle,
     .rules = {.rows = CircleRows,
               .enables = {{kIdCmdTime, CircleByTime},
                           {kIdCmdTimeClone, CircleByTime},
                           {kIdMoveSpeed, CircleBySpeed},
                           {kIdMoveSpeedClone, CircleBySpeed},
                           {kIdCmdAnime, AnimeChosen}}}},
    // The dialogs' list names ターゲット, ズレ and 設定タイプ; the record marks
    // also the angle with its mirror, the flips, the axes, the facing, the
    // speed and distance, the inertia and the アニメ.
    {.kind = kCmdCharge,
     .rules = {.rows = ChargeRows, .enables = MoveEnables()},
     .accept = AcceptRatio,
     .texts = kRatioTexts,
     .shows = kRatioShows},
    // The dialogs' list names ターゲット and 誘導精度の悪さ; the record marks
    // also ズレ, the flips, the axes, ブレを防止, the facing, 設定タイプ with
    // speed and distance, the inertia and the アニメ.
    {.kind = kCmdHoming,
     .rules = {.rows = HomingRows, .enables = MoveEnables()},
     .accept = AcceptRatio,
     .texts = kRatioTexts,
     .shows = kRatioShows},
    // The dialogs' list names 方向 and 設定タイプ; the record marks also the
    // speed and distance, the inertia, the facing and the アニメ.
    {.kind = kCmdAvoid,
     .rules = {.rows = AvoidRows, .enables = MoveEnables()},
     .accept = AcceptRatio,
     .texts = kRatioTexts,
     .shows = kRatioShows},
    {.kind = kCmdStopMove, .rules = {.rows = TimeOnlyRows}},
    {.kind = kCmdWarp, .rules = {.rows = WarpRows, .enables = kWarpEnables}},
};

}  // namespace

std::span<const cCmdKindForm> MoveForms() { return kForms; }

}  // namespace velmora
