#pragma once
#include <cstdint>
#include <vector>

#include "project/AnimeRecords.h"

namespace velmora {

// One step of a preview pattern. Values -1, -2 and -3 are marks that steer
// the runner instead of naming a cell.
struct cAnimeStep {
  int32_t value = 0;
  int32_t time = 0;  // ticks; for mark -3 the pattern to go on with
  int32_t lock = 0;  // while set, an unforced Select is refused
};

using cAnimePattern = std::vector<cAnimeStep>;

inline constexpr int32_t kAnimeStop = -1;
inline constexpr int32_t kAnimeRestart = -2;
inline constexpr int32_t kAnimeJump = -3;

// Steps the animation previews at the idle rate.
class cAnimeRunner {
 public:
  void Assign(std::vector<cAnimePattern> patterns);
  // Counts one tick; gives the value of the step current afterwards, 0
  // without patterns.
  int32_t Tick();
  int32_t Peek() const;
  // 1 when the pattern became current from its first step, 0 when refused
  // by a lock (without `force`) or for a pattern that doesn't exist.
  int Select(int pattern, bool force);

  int CurrentPattern() const { return m_pattern; }
  int CurrentStep() const { return m_step; }

 private:
  const cAnimePattern* Pattern() const;
  const cAnimeStep* Step() const;
  void ApplyMark();

  std::vector<cAnimePattern> m_patterns;
  int m_pattern = 0;
  int m_step = 0;
  int m_ticks = 0;
};

// The one runner behind the database pages' previews.
cAnimeRunner& AnimeRunner();

// The pattern a preview plays for an animation's frames: each frame's cell
// for its time (1/10 s) at 60 ticks a second, then back to the start.
cAnimePattern PreviewPattern(const std::vector<cEdAnimeFrame>& frames);

// The cell a preview shows for a runner value.
inline int PreviewCell(int startCell, int32_t value) { return startCell + (value & 0xFFFF); }

}  // namespace velmora
