#include "project/AnimeRecords.h"

#include "core/SystemText.h"

namespace velmora {
namespace {

const char* const kSlotNames[cEdAnimeSet::kSlotCount] = {"立ち", "立ち移動", "飛行", "飛行移動"};

}  // namespace

void cEdAnimeFrame::SetUp() {
  Reset();
  m_iTime = 1;
}

void cEdAnimeFrame::Register(uint32_t) {
  ClearLists();
  Add4(VFIELD(m_iCell));
  Add4(VFIELD(m_iTime));
  Add4(VFIELD(m_bCommand));
}

void cEdAnime::SetUp() {
  Reset();
  m_cSampleKind = kGraphicKindChara;
  m_vecFrames.assign(1, cEdAnimeFrame());
}

void cEdAnime::Register(uint32_t version) {
  ClearLists();
  AddString(VSTRING(m_strName));
  if (version >= 55) {
    Add2(VFIELD(m_iSampleNo));
    Add1(VFIELD(m_cSampleKind));
    Add2(VFIELD(m_iSampleCell));
  }
}

void cEdAnime::Load(cDataFile& file) {
  cSaveData::Load(file);
  LoadVector(m_vecFrames, file);
}

void cEdAnime::Save(cDataFile& file) {
  cSaveData::Save(file);
  SaveVector(m_vecFrames, file);
}

void cEdAnime::VisitNested(cNestedVisitor& visitor) const { VisitVector(visitor, "m_vecFrames", m_vecFrames); }

void cEdAnimeSet::SetUp() {
  Reset();
  m_iInvincibleShift = 4;
  m_iBlockShift = 8;
  m_vecAnime.assign(kSlotCount, cEdAnime());
  for (int slot = 0; slot < kSlotCount; ++slot) m_vecAnime[static_cast<size_t>(slot)].m_strName = SysText(kSlotNames[slot]);
}

void cEdAnimeSet::Register(uint32_t version) {
  ClearLists();
  AddString(VSTRING(m_strName));
  Add4(VFIELD(m_iInvincibleShift));
  Add4(VFIELD(m_iBlockShift));
  if (version >= 119) Add4(VFIELD(m_iFlyShift));
}

void cEdAnimeSet::Load(cDataFile& file) {
  cSaveData::Load(file);
  LoadVector(m_vecAnime, file);
  // The slots are always four; files before 119 had no flying slots, and
  // a damaged file must not leave the pages without theirs.
  m_vecAnime.resize(kSlotCount);
  if (g_nFileVersion < 128) {
    m_vecAnime[2].m_strName = SysText(kSlotNames[2]);
    m_vecAnime[3].m_strName = SysText(kSlotNames[3]);
  }
}

void cEdAnimeSet::Save(cDataFile& file) {
  cSaveData::Save(file);
  SaveVector(m_vecAnime, file);
}

void cEdAnimeSet::VisitNested(cNestedVisitor& visitor) const { VisitVector(visitor, "m_vecAnime", m_vecAnime); }

}  // namespace velmora
