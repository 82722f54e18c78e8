#pragma once
#include <optional>

namespace velmora {

// The database lists that commands refer to by row.
enum class eDbList { AnimeSet, Anime, BmpCharaExc, SwordType, Effect, CharaEffect, ScrEffect, Picture, Sound, Bgm, Count };
enum class ePalette { Common, Stage };
enum class ePaletteList { Block, Chara, Item };

// What the reference checks need to know of the project: the sizes of the
// lists that records point into. The database and the palettes install
// their own; until then nothing counts as out of range, so a check never
// destroys references against lists that are not loaded.
class cRefSizes {
 public:
  virtual ~cRefSizes() = default;
  virtual int DbListSize(eDbList list) const;
  virtual int PaletteListSize(ePalette palette, ePaletteList list) const;
  // The running time of a sword type, (1/10s); none when unknown.
  virtual std::optional<int> SwordTypeTime(int row) const;
};

const cRefSizes& RefSizes();

// A row number at or beyond its list points nowhere: it becomes なし (0).
// Row 0 and below lie beyond no list, so most rows ask nothing; a loaded
// stage passes millions of them.
template <class N>
void ClearBeyond(N& row, eDbList list) {
  if (row > 0 && row >= RefSizes().DbListSize(list)) row = 0;
}
// Null brings back the default. The caller keeps the object alive.
void InstallRefSizes(const cRefSizes* sizes);

}  // namespace velmora
