#pragma once
#include <cstdint>

#include "objects/CmdTable.h"
#include "objects/RefSizes.h"

namespace velmora {

// A parameter that names a database row; out of the list it becomes
// `repaired`. `whenP0` limits the rule to one value of parameter 0. The
// reference checks repair by these rows and the search for uses reads them.
struct cParamRef {
  int kind;    // CmdTable numbering
  int whenP0;  // kAnyP0: always
  int index;
  eDbList list;
  int32_t repaired;
};

inline constexpr int kAnyP0 = -1;
inline constexpr int kGraphicOwnBitmap = 4;

inline constexpr cParamRef kCmdParamRefs[] = {
    {kCmdGraphic, kGraphicOwnBitmap, 1, eDbList::BmpCharaExc, 1},
    {kCmdAnimeSet, kAnyP0, 0, eDbList::AnimeSet, 0},
    {kCmdAnime, kAnyP0, 0, eDbList::Anime, 1},
    {kCmdEffect, kAnyP0, 0, eDbList::Effect, 1},
    {kCmdCharaEffect, kAnyP0, 0, eDbList::CharaEffect, 1},
    {kCmdScrEffect, kAnyP0, 0, eDbList::ScrEffect, 1},
    {kCmdPicture, kAnyP0, 0, eDbList::Picture, 1},
    {kCmdSound, kAnyP0, 0, eDbList::Sound, 1},
    {kCmdBgm, kAnyP0, 0, eDbList::Bgm, 1},
};

}  // namespace velmora
