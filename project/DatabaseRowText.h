#pragma once
#include <string>

#include "project/AnimeRecords.h"
#include "project/EffectRecords.h"
#include "project/SwordRecords.h"

namespace velmora {

// How the rows of the database window's nested lists read, in CP932.

// "%d-%d" (cell, time), or "実行 %d-%d" for a step that fires a command.
std::string AnimeFrameRowText(const cEdAnimeFrame& frame);
std::string EffectFrameRowText(const cEdEffectFrame& frame);
// A fixed slot of an animation set: "%s ×%d" (name, number of frames).
std::string AnimeSlotRowText(const cEdAnime& slot);
// "%s(%d,%d) 横%d 縦%d 時間%d": direction, source x and y, width, height,
// time.
std::string SwordPosRowText(const cEdSwordPos& pos);

}  // namespace velmora
