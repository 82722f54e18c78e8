#include "project/DatabaseRowText.h"

#include <cstdio>

#include "core/SystemText.h"

namespace velmora {
namespace {

constexpr const char* kDirections[] = {"前", "後", "上", "下"};
constexpr int kDirectionCount = static_cast<int>(std::size(kDirections));

std::string Format(const char* format, auto... values) {
  char text[256];
  std::snprintf(text, sizeof text, format, values...);
  return text;
}

std::string CellTimeText(int32_t cell, int32_t time) { return Format("%d-%d", cell, time); }

}  // namespace

std::string AnimeFrameRowText(const cEdAnimeFrame& frame) {
  const std::string text = CellTimeText(frame.m_iCell, frame.m_iTime);
  return frame.m_bCommand ? SysText("実行 ") + text : text;
}

std::string EffectFrameRowText(const cEdEffectFrame& frame) { return CellTimeText(frame.m_iCell, frame.m_iTime); }

std::string AnimeSlotRowText(const cEdAnime& slot) {
  return Format(SysText("%s ×%d"), slot.m_strName.c_str(), static_cast<int>(slot.m_vecFrames.size()));
}

// A direction that no table knows, as a damaged file may hold, reads as
// nothing rather than as another direction.
std::string SwordPosRowText(const cEdSwordPos& pos) {
  const bool known = pos.m_iDirection >= 0 && pos.m_iDirection < kDirectionCount;
  const std::string direction = known ? SysText(kDirections[pos.m_iDirection]) : std::string();
  return Format(SysText("%s(%d,%d) 横%d 縦%d 時間%d"), direction.c_str(), pos.m_iSrcX, pos.m_iSrcY, pos.m_iWidth,
                pos.m_iHeight, pos.m_iTime);
}

}  // namespace velmora
