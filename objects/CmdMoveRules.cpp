#include "objects/CmdMoveRules.h"

#include "core/Log.h"
#include "core/SystemText.h"
#include "objects/LabelTable.h"

namespace velmora {

cMoveRatioLines MoveRatioLines(const cCmdWork& work) {
  const cEdMove& move = work.move;
  cMoveRatioLines lines;
  if (move.m_nSetType == kSetSpeedDist) {
    AppendFormat(lines.ratio, SysText("距離(dot)÷速度　＝　%0.2lf (※分身は無視)"),
                 DistPerSpeed(move.m_nDist, move.m_nSpeed, move.m_nDistUnit));
    lines.rule = SysText("※距離(dot)÷速度を0.10以上(-0.10以下)にすること");
  } else if (move.m_nSetType == kSetTimeDist) {
    AppendFormat(lines.ratio, SysText("距離(dot)÷時間　＝　%0.1lf (※分身は無視)"),
                 DistPerTime(move.m_nDist, work.cmd.m_nTime, move.m_nDistUnit));
    lines.rule = SysText("※距離(dot)÷時間を-600～600にすること");
  }
  return lines;
}

bool AcceptMoveRatio(const cCmdWork& work, OwnerWindow owner) {
  const cEdMove& move = work.move;
  if (move.m_nSetType == kSetSpeedDist && !IsDistSpeedValid(move.m_nDist, move.m_nSpeed, move.m_nDistUnit)) {
    ErrorBoxOwned(owner, "%s", SysText("「距離÷速度」を0.10以上、または-0.10以下にして下さい！"));
    return false;
  }
  if (move.m_nSetType == kSetTimeDist && !IsDistTimeValid(move.m_nDist, work.cmd.m_nTime, move.m_nDistUnit)) {
    const char* question =
        "なるべく「距離÷時間」を-600～600にして下さい！\nそうしないと速度制限がかかって、移動距離も指定した「距離」より短く"
        "なります。\nそれでもこの設定でよろしいですか？";
    return Prompt().Ask(owner, SysText("警告"), SysText(question), eButtons::YesNo, eIcon::Warning) == eAnswer::Yes;
  }
  return true;
}

}  // namespace velmora
