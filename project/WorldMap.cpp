#include "project/WorldMap.h"

#include <algorithm>

#include "core/Log.h"
#include "core/SystemText.h"
#include "project/StreamParts.h"

namespace velmora {
namespace {

constexpr int kOldChipCount = 10;
constexpr int kOldBlockedChips = 5;

}  // namespace

int PitchShiftFor(int width) {
  int shift = 0;
  for (int rest = width - 1; rest > 0; rest /= 2) ++shift;
  return shift;
}

void cEdWorldMap::SetUp() {
  Reset();
  m_nWidth = 20;
  m_nHeight = 15;
  m_nPitch = 32;
  m_nPitch_Shift = 5;
  m_iStartX = 9;
  m_iStartY = 7;
  m_iBackColor = 16;
  m_strCaption = SysText("ワールド");
  m_vecChips.clear();
  m_vecCells.assign(static_cast<size_t>(m_nPitch) * static_cast<size_t>(m_nHeight), 0);
  m_vecEvents.clear();
  m_vecTemplates.assign(1, cEdWorldEvent());
  m_vecTemplates[0].m_strName = SysText("デフォルト");
}

void cEdWorldMap::Register(uint32_t) {
  ClearLists();
  Add4(VFIELD(m_nWidth));
  Add4(VFIELD(m_nHeight));
  Add4(VFIELD(m_nPitch));
  Add4(VFIELD(m_nPitch_Shift));
  Add4(VFIELD(m_iStartX));
  Add4(VFIELD(m_iStartY));
  Add4(VFIELD(m_iBackColor));
  Add4(VFIELD(m_bUseBackImage));
  AddString(VSTRING(m_strCaption));
  AddString(VSTRING(m_strBackPath));
}

void cEdWorldMap::Load(cDataFile& file) {
  cSaveData::Load(file);
  LoadVector(m_vecChips, file);
  LoadInts(m_vecCells, file);
  LoadVector(m_vecEvents, file);
  LoadVector(m_vecTemplates, file);
  if (g_nFileVersion < 812) GiveOldFilesTheirChips();
  FitGridShape();
  Sanitize();
}

void cEdWorldMap::Save(cDataFile& file) {
  Sanitize();
  cSaveData::Save(file);
  SaveVector(m_vecChips, file);
  SaveInts(m_vecCells, file);
  SaveVector(m_vecEvents, file);
  SaveVector(m_vecTemplates, file);
}

void cEdWorldMap::VisitNested(cNestedVisitor& visitor) const {
  VisitVector(visitor, "m_vecChips", m_vecChips);
  VisitNumbers(visitor, "m_vecCells", m_vecCells);
  VisitVector(visitor, "m_vecEvents", m_vecEvents);
  VisitVector(visitor, "m_vecTemplates", m_vecTemplates);
}

// Before the chip list existed a map had ten fixed chips: five walls and
// five open grounds.
void cEdWorldMap::GiveOldFilesTheirChips() {
  m_vecChips.assign(kOldChipCount, cEdWorldChip());
  for (int i = 0; i < kOldChipCount; ++i) {
    cEdWorldChip& chip = m_vecChips[static_cast<size_t>(i)];
    chip.m_iGraphic = i;
    chip.m_bBlocked = i < kOldBlockedChips;
    chip.m_strName = SysText(i < kOldBlockedChips ? "移動不可" : "移動可");
  }
}

// A damaged file may hold a size, stride or grid that disagree; the map is
// brought back to a shape whose every cell can be reached.
void cEdWorldMap::FitGridShape() {
  const int width = std::clamp(m_nWidth, 1, kMaxWidth);
  const int height = std::clamp(m_nHeight, 1, kMaxHeight);
  const int shift = PitchShiftFor(width);
  const size_t cells = static_cast<size_t>(1 << shift) * static_cast<size_t>(height);
  if (width == m_nWidth && height == m_nHeight && shift == m_nPitch_Shift && m_nPitch == (1 << shift) &&
      cells == m_vecCells.size()) {
    return;
  }
  ReportLine("WorldMap: grid %d x %d (pitch %d, %zu cells) repaired to %d x %d", m_nWidth, m_nHeight, m_nPitch,
             m_vecCells.size(), width, height);
  m_nWidth = width;
  m_nHeight = height;
  m_nPitch_Shift = shift;
  m_nPitch = 1 << shift;
  m_vecCells.resize(cells, 0);
}

int cEdWorldMap::CellIndex(int x, int y) const {
  if (x < 0 || y < 0 || x >= m_nWidth || y >= m_nHeight) return -1;
  const int index = (y << m_nPitch_Shift) + x;
  return static_cast<size_t>(index) < m_vecCells.size() ? index : -1;
}

int32_t cEdWorldMap::Cell(int x, int y) const {
  const int index = CellIndex(x, y);
  return index < 0 ? 0 : m_vecCells[static_cast<size_t>(index)];
}

void cEdWorldMap::SetCell(int x, int y, int32_t chip) {
  const int index = CellIndex(x, y);
  if (index >= 0) m_vecCells[static_cast<size_t>(index)] = chip;
}

bool cEdWorldMap::SetSize(int width, int height) {
  if (width <= 0 || height <= 0) {
    ReportLine("%s", SysText("SetSize()で 0 を指定しました！"));
    return false;
  }
  const cEdWorldMap before = *this;
  if (!m_vecCells.empty()) {
    ReportLine("nBeforeWidth = %d,nBeforePitch = %d,nBeforePitch_Shift = %d", m_nWidth, m_nPitch, m_nPitch_Shift);
  }
  m_nWidth = width;
  m_nHeight = height;
  m_nPitch_Shift = PitchShiftFor(width);
  m_nPitch = 1 << m_nPitch_Shift;
  m_vecCells.assign(static_cast<size_t>(m_nPitch) * static_cast<size_t>(height), 0);
  const int overlapWidth = std::min(width, before.m_nWidth);
  const int overlapHeight = std::min(height, before.m_nHeight);
  for (int y = 0; y < overlapHeight; ++y) {
    for (int x = 0; x < overlapWidth; ++x) SetCell(x, y, before.Cell(x, y));
  }
  return true;
}

void cEdWorldMap::Sanitize() {
  if (m_iStartX >= m_nWidth) m_iStartX = m_nWidth - 1;
  if (m_iStartY >= m_nHeight) m_iStartY = m_nHeight - 1;
  const int32_t chipCount = static_cast<int32_t>(m_vecChips.size());
  for (int y = 0; y < m_nHeight; ++y) {
    for (int x = 0; x < m_nWidth; ++x) {
      if (Cell(x, y) >= chipCount) SetCell(x, y, 0);
    }
  }
  std::erase_if(m_vecEvents,
                [&](const cEdWorldEvent& event) { return event.m_iX >= m_nWidth || event.m_iY >= m_nHeight; });
}

const cEdWorldEvent* cEdWorldMap::EventAt(int x, int y) const {
  for (const cEdWorldEvent& event : m_vecEvents) {
    if (event.m_iX == x && event.m_iY == y) return &event;
  }
  return nullptr;
}

cEdWorldEvent* cEdWorldMap::EventAt(int x, int y) {
  return const_cast<cEdWorldEvent*>(static_cast<const cEdWorldMap*>(this)->EventAt(x, y));
}

void cEdWorldMap::PlaceEvent(cEdWorldEvent event, int x, int y) {
  RemoveEventsAt(x, y);
  event.m_iX = x;
  event.m_iY = y;
  m_vecEvents.push_back(std::move(event));
}

void cEdWorldMap::RemoveEventsAt(int x, int y) {
  std::erase_if(m_vecEvents, [&](const cEdWorldEvent& event) { return event.m_iX == x && event.m_iY == y; });
}

void cEdWorldMap::RemoveEvent(const cEdWorldEvent* event) {
  std::erase_if(m_vecEvents, [&](const cEdWorldEvent& candidate) { return &candidate == event; });
}

void cEdWorldMap::ClearChips() { std::fill(m_vecCells.begin(), m_vecCells.end(), 0); }

int cEdWorldMap::NextWorldNo(const cEdWorldEvent* excluded) const {
  std::vector<bool> used(kMaxWorldNo + 1, false);
  for (const cEdWorldEvent& event : m_vecEvents) {
    if (&event == excluded) continue;
    for (const cEdWorldPage& page : event.m_vecPages) {
      if (page.m_iType == cEdWorldPage::TypeWorld && page.m_iWorldNo >= 1 && page.m_iWorldNo <= kMaxWorldNo) {
        used[static_cast<size_t>(page.m_iWorldNo)] = true;
      }
    }
  }
  for (int number = 1; number <= kMaxWorldNo; ++number) {
    if (!used[static_cast<size_t>(number)]) return number;
  }
  return 0;
}

void cEdWorldMap::AssignWorldNos(cEdWorldEvent& event, const cEdWorldEvent* excluded) const {
  for (cEdWorldPage& page : event.m_vecPages) {
    if (page.m_iType == cEdWorldPage::TypeWorld) page.m_iWorldNo = NextWorldNo(excluded);
  }
}

cEdWorldMap& WorldMap() {
  static cEdWorldMap map;
  return map;
}

}  // namespace velmora
