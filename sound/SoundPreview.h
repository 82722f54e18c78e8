#pragma once
#include <string>

#include "objects/RefSizes.h"

namespace velmora {

// What a "再生" button beside a choice of the Sound or Bgm list does: the
// row's sound effect plays once through the wave preview, the row's music
// through the music facade at the entry's volume. The reserved row 0, a
// row the list doesn't have and an entry without a file play nothing and
// say nothing; a file that can't be played is told in "読み込み失敗！".
class cSoundPreview {
 public:
  cSoundPreview() = default;
  cSoundPreview(const cSoundPreview&) = delete;
  cSoundPreview& operator=(const cSoundPreview&) = delete;
  ~cSoundPreview() { Stop(); }

  // True when the row's file started.
  bool Play(eDbList list, int row);
  // A sound effect named by its stored path rather than by a row: the
  // same once through the wave preview; an empty path plays nothing.
  bool PlaySoundFile(const std::string& path);
  // Ends what this preview started last; the owner's window closes.
  void Stop();

 private:
  bool m_bSound = false;
  bool m_bMusic = false;
};

}  // namespace velmora
