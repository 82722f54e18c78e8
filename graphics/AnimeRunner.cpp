#include "graphics/AnimeRunner.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace velmora {

void cAnimeRunner::Assign(std::vector<cAnimePattern> patterns) {
  m_patterns = std::move(patterns);
  m_pattern = 0;
  m_step = 0;
  m_ticks = 0;
}

const cAnimePattern* cAnimeRunner::Pattern() const {
  if (m_pattern < 0 || m_pattern >= static_cast<int>(m_patterns.size())) return nullptr;
  return &m_patterns[static_cast<size_t>(m_pattern)];
}

const cAnimeStep* cAnimeRunner::Step() const {
  const cAnimePattern* pattern = Pattern();
  if (!pattern || m_step < 0 || m_step >= static_cast<int>(pattern->size())) return nullptr;
  return &(*pattern)[static_cast<size_t>(m_step)];
}

int32_t cAnimeRunner::Tick() {
  if (m_patterns.empty()) return 0;
  const cAnimeStep* step = Step();
  if (step && ++m_ticks >= step->time) {
    m_ticks = 0;
    ++m_step;
    ApplyMark();
  }
  return Peek();
}

// A pattern that runs off its end without a closing mark starts again, so
// a damaged pattern can never leave the runner on a missing step.
void cAnimeRunner::ApplyMark() {
  const cAnimePattern* pattern = Pattern();
  if (!pattern || m_step >= static_cast<int>(pattern->size())) {
    m_step = 0;
    return;
  }
  const cAnimeStep& step = (*pattern)[static_cast<size_t>(m_step)];
  if (step.value == kAnimeStop) {
    m_step = m_step > 0 ? m_step - 1 : 0;
  } else if (step.value == kAnimeRestart) {
    m_step = 0;
  } else if (step.value == kAnimeJump) {
    if (!Select(step.time, true)) m_step = 0;
  }
}

int32_t cAnimeRunner::Peek() const {
  const cAnimeStep* step = Step();
  if (!step || step->value < 0) return 0;  // a mark shows the start cell
  return step->value;
}

int cAnimeRunner::Select(int pattern, bool force) {
  const cAnimeStep* step = Step();
  if (!force && step && step->lock) return 0;
  if (pattern < 0 || pattern >= static_cast<int>(m_patterns.size())) return 0;
  m_pattern = pattern;
  m_step = 0;
  m_ticks = 0;
  return 1;
}

cAnimeRunner& AnimeRunner() {
  static cAnimeRunner runner;
  return runner;
}

cAnimePattern PreviewPattern(const std::vector<cEdAnimeFrame>& frames) {
  constexpr int kTicksPerTenth = 6;
  cAnimePattern pattern;
  pattern.reserve(frames.size() + 1);
  // A time from a damaged file may be any number; its ticks stay a number.
  constexpr int32_t kLongestTime = std::numeric_limits<int32_t>::max() / kTicksPerTenth;
  for (const cEdAnimeFrame& frame : frames) {
    pattern.push_back({frame.m_iCell, std::clamp(frame.m_iTime, -kLongestTime, kLongestTime) * kTicksPerTenth, 0});
  }
  pattern.push_back({kAnimeRestart, 0, 0});
  return pattern;
}

}  // namespace velmora
