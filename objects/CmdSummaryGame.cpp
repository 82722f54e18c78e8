#include <algorithm>
#include <cstdint>

#include "core/SystemText.h"
#include "objects/CmdSummaryParts.h"
#include "objects/CmdTable.h"
#include "objects/CondTables.h"
#include "objects/FlowTables.h"
#include "objects/MoveTables.h"
#include "objects/PaletteTables.h"

// The lines of the commands on the game, the screen and the sound, and of
// the commands an item shares with characters.
namespace velmora {
namespace {

constexpr int kAnimeTimeLimit = 9999;
constexpr int kShowUntilKey = 0;
constexpr int kShowUntilStageEnd = 1;
constexpr int kShowForTime = 2;
constexpr int kWarpByCoord = 5;
constexpr int kRunRoundTrip = 2;

// Sums of damaged values must not wrap.
int ClampToInt(long long value) { return static_cast<int>(std::clamp<long long>(value, INT32_MIN, INT32_MAX)); }

// メッセージ and ピクチャー share how long they stay on the screen.
std::string ShowTimeHead(const cEdCmd& cmd, int showTime, int time) {
  switch (showTime) {
    case kShowUntilStageEnd:
      return SysText(kHeadEndless);
    case kShowForTime:
      return HeadTotal(cmd, time);
    case kShowUntilKey:
    default:
      return SysText(kHeadGameKnows);
  }
}

void RenderZeroTime(const cEdCmd& cmd, cCmdLine& line) { line.head = HeadTime(cmd, 0); }

void RenderGameWait(const cEdCmd& cmd, cCmdLine& line) { line.head = HeadTime(cmd, Param(cmd, 0)); }

void RenderMessage(const cEdCmd& cmd, cCmdLine& line) {
  if (Param(cmd, 15)) {
    line.head = SysText(kHeadInstant);
    line.details = SysText(" メッセージの消去");
    return;
  }
  line.head = ShowTimeHead(cmd, Param(cmd, 6), Param(cmd, 7));
  AppendPiece(line.details, cmd.m_strText);
}

void RenderWarp(const cEdCmd& cmd, cCmdLine& line) {
  const cEdMove& move = MoveOf(cmd);
  line.head = HeadTime(cmd, 0);
  AppendLabel(line.details, WarpAimTable, move.m_nAimType);
  if (move.m_nAimType < kWarpByCoord) {
    AppendFormat(line.details, SysText(" %s 距%d"), DirTable.Label(move.m_nDir), move.m_nDist);
  } else if (move.m_nAimType == kWarpByCoord) {
    AppendLabel(line.details, CoordTypeTable, move.m_nTargetType);
    line.details += ' ';
    AppendTargetAxes(line.details, move, true);
  }
}

void RenderTargetSet(const cEdCmd& cmd, cCmdLine& line) {
  line.head = HeadTime(cmd, 0);
  AppendFormat(line.details, SysText(" %s を %s にする"), Target4Table.Label(Param(cmd, 0)),
               TargetSetTable.Label(Param(cmd, 1)));
}

// キャラ and ショット are limited to a force and a range; the others are
// the user's own children.
void RenderVanish(const cEdCmd& cmd, cCmdLine& line) {
  line.head = HeadTime(cmd, 0);
  const int target = Param(cmd, 0);
  AppendLabel(line.details, VanishTable, target);
  if (target == 0 || target == 1) {
    AppendFormat(line.details, SysText(" %s 対象勢力%d"), VanishRangeTable.Label(Param(cmd, 2)), Param(cmd, 1));
  }
}

void RenderGetItem(const cEdCmd& cmd, cCmdLine& line) {
  line.head = HeadTime(cmd, cmd.m_nTime);
  AppendEntry(line.details, Param(cmd, 0), ePaletteList::Item, Param(cmd, 1));
}

void RenderAnimeSet(const cEdCmd& cmd, cCmdLine& line) {
  line.head = HeadTime(cmd, 0);
  AppendDbName(line.details, eDbList::AnimeSet, Param(cmd, 0));
}

int AnimeTime(int row) {
  long long total = 0;
  for (int time : RefNames().FrameTimes(eDbList::Anime, row)) total = std::min<long long>(total + time, kAnimeTimeLimit);
  return ClampToInt(total);
}

void RenderAnime(const cEdCmd& cmd, cCmdLine& line) {
  const int anime = Param(cmd, 0);
  const std::string name = RefNames().DbRowName(eDbList::Anime, anime);
  if (Param(cmd, 1)) {
    line.head = SysText(kHeadInstant);
    AppendFormat(line.details, SysText(" %s を 終了"), name.c_str());
    return;
  }
  line.head = HeadTotal(cmd, AnimeTime(anime));
  AppendPiece(line.details, name);
}

// An effect's frames have no limit on their sum; they are few and short.
int EffectFramesTime(int row) {
  long long total = 0;
  for (int time : RefNames().FrameTimes(eDbList::Effect, row)) total += time;
  return ClampToInt(total);
}

// Clearing the effects keeps a separator where the head would end, so the
// line shows " ◆" twice in a row.
void RenderEffect(const cEdCmd& cmd, cCmdLine& line) {
  const int effect = Param(cmd, 0);
  if (effect == 0) {
    line.head = SysText("P-0 ◆");
    line.details = SysText(" エフェクトの消去");
    return;
  }
  line.head = HeadTotal(cmd, EffectFramesTime(effect));
  AppendDbName(line.details, eDbList::Effect, effect);
}

void RenderRunEffect(const cEdCmd& cmd, cCmdLine& line, eDbList list) {
  const int effect = Param(cmd, 0);
  const int mode = Param(cmd, 1);
  const long long time = RefNames().EffectTime(list, effect);
  line.head = HeadTotal(cmd, ClampToInt(mode == kRunRoundTrip ? time * 2 : time));
  if (effect == 0) {
    line.details = SysText(" なし");
    return;
  }
  AppendDbName(line.details, list, effect);
  if (mode != 0) AppendLabel(line.details, RunModeTable, mode);
  if (Param(cmd, 2)) line.details += SysText(" ループ実行");
}

void RenderCharaEffect(const cEdCmd& cmd, cCmdLine& line) { RenderRunEffect(cmd, line, eDbList::CharaEffect); }
void RenderScrEffect(const cEdCmd& cmd, cCmdLine& line) { RenderRunEffect(cmd, line, eDbList::ScrEffect); }

void RenderPicture(const cEdCmd& cmd, cCmdLine& line) {
  const int picture = Param(cmd, 0);
  if (picture == 0) {
    line.head = SysText(kHeadInstant);
    line.details = SysText(" ピクチャーの消去");
    return;
  }
  line.head = ShowTimeHead(cmd, Param(cmd, 8), Param(cmd, 9));
  AppendDbName(line.details, eDbList::Picture, picture);
}

// A flashing change lasts its time once per flash.
void RenderScreenColor(const cEdCmd& cmd, cCmdLine& line) {
  const bool flash = Param(cmd, 6) != 0;
  line.head = HeadTotal(cmd, flash ? ClampToInt(static_cast<long long>(Param(cmd, 5)) * Param(cmd, 7)) : Param(cmd, 5));
  if (Param(cmd, 4)) {
    line.details = SysText(" 元に戻す");
    return;
  }
  AppendFormat(line.details, " R%d G%d B%d %d%%", Param(cmd, 0), Param(cmd, 1), Param(cmd, 2), Param(cmd, 3));
  if (flash) AppendFormat(line.details, SysText(" 瞬間表示 × %d"), Param(cmd, 7));
}

void RenderBack(const cEdCmd& cmd, cCmdLine& line) {
  line.head = HeadTime(cmd, 0);
  AppendFormat(line.details, SysText(" %d番 を %s"), Param(cmd, 0), ShowToggleTable.Label(Param(cmd, 1)));
}

void RenderSound(const cEdCmd& cmd, cCmdLine& line) {
  line.head = HeadTime(cmd, 0);
  AppendDbName(line.details, eDbList::Sound, Param(cmd, 0));
}

void RenderBgm(const cEdCmd& cmd, cCmdLine& line) {
  line.head = HeadTime(cmd, 0);
  AppendDbName(line.details, eDbList::Bgm, Param(cmd, 0));
}

void RenderCode(const cEdCmd& cmd, cCmdLine& line) {
  line.head = HeadTime(cmd, 0);
  AppendPiece(line.details, cmd.m_strText);
}

void RenderLoop(const cEdCmd& cmd, cCmdLine& line) {
  line.head = HeadTime(cmd, 0);
  AppendFormat(line.details, SysText(" 後続 %d 個のコマンドを %d 回繰り返す"), Param(cmd, 1), Param(cmd, 0));
}

constexpr cCmdRenderRow kRows[] = {
    {kCmdStageClear, &RenderZeroTime},
    {kCmdGameWait, &RenderGameWait},
    {kCmdMessage, &RenderMessage},
    {kCmdWarp, &RenderWarp},
    {kCmdTargetSet, &RenderTargetSet},
    {kCmdVanish, &RenderVanish},
    {kCmdGetItem, &RenderGetItem},
    {kCmdGraphic, &RenderZeroTime},
    {kCmdAnimeSet, &RenderAnimeSet},
    {kCmdAnime, &RenderAnime},
    {kCmdEffect, &RenderEffect},
    {kCmdCharaEffect, &RenderCharaEffect},
    {kCmdScrEffect, &RenderScrEffect},
    {kCmdPicture, &RenderPicture},
    {kCmdScreenColor, &RenderScreenColor},
    {kCmdBack, &RenderBack},
    {kCmdSound, &RenderSound},
    {kCmdBgm, &RenderBgm},
    {kCmdCode, &RenderCode},
    {kCmdLoop, &RenderLoop},
};

}  // namespace

std::span<const cCmdRenderRow> GameRenderRows() { return kRows; }

}  // namespace velmora
