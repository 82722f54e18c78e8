#include "project/SystemRecord.h"

#include "project/CompatFlags.h"
#include "project/Database.h"
#include "project/StreamParts.h"
#include "project/SystemRepairs.h"

namespace velmora {

void cEdSystem::RegisterCompatFlags(uint32_t version, uint32_t fromGate, uint32_t toGate) {
  for (const cCompatFlag& flag : CompatFlags()) {
    if (flag.gate >= fromGate && flag.gate <= toGate && version >= flag.gate) Add4(&(this->*flag.member), 1, flag.name);
  }
}

void cEdSystem::Register(uint32_t version) {
  ClearLists();
  AddString(VSTRING(m_strGameTitle));
  if (version >= 185) Add4(VFIELD(m_b1UpOnClear));
  Add4(VFIELD(m_i1UpScore));
  if (version >= 838) Add4(VFIELD(m_bPause));
  Add4(VFIELD(m_bPauseHideObjects));
  Add4(VFIELD(m_bSymbols));
  if (version >= 205) Add4(VFIELD(m_iFont));
  if (version >= 170) Add4(VFIELD(m_bEvenPitch));
  if (version >= 113) Add4(VFIELD(m_bTestFlowAlways));
  if (version >= 855) Add4(VFIELD(m_iCharaDraw));
  if (version >= 184) Add4(VFIELD(m_bReplaySave));
  if (version >= 943) Add4(VFIELD(m_bReplayManual));
  if (version >= 933) Add4(VFIELD(m_iReplayFileName));
  if (version >= 943) Add4(VFIELD(m_bOldFileDialog));
  if (version >= 157) Add4(VFIELD(m_bTitleImage));
  if (version >= 821) Add4(VFIELD(m_bAutoSaveStart));
  if (version >= 932) {
    Add4(VFIELD(m_bShowHelp));
    AddString(VSTRING(m_strHelp));
  }
  Add4(VFIELD(m_bShareLives));
  if (version >= 191) {
    Add4(VFIELD(m_bMapOnDeath));
    Add4(VFIELD(m_bMapShowLives));
  }
  if (version >= 915) Add4(VFIELD(m_bAutoSaveEachStage));
  Add4(VFIELD(m_iChallengeWorlds));
  Add4(VFIELD(m_bChallengeAllWorlds));
  if (version >= 167) {
    Add4(VFIELD(m_bStoryHighScore));
    Add4(VFIELD(m_bStoryTotalScore));
  }
  if (version >= 188) Add4(VFIELD(m_bStoryRestore));
  if (version >= 224) Add4(VFIELD(m_bStoryRetry));
  if (version >= 167) {
    Add4(VFIELD(m_bChallHighScore));
    Add4(VFIELD(m_bChallTotalScore));
  }
  if (version >= 188) Add4(VFIELD(m_bChallRestore));
  if (version >= 224) Add4(VFIELD(m_bChallRetry));
  if (version >= 188) Add4(VFIELD(m_bFreeRestore));
  if (version >= 192) Add4(VFIELD(m_bTestRestore));
  if (version >= 187) {
    Add4(VFIELD(m_iBmpDepth));
    Add1(VFIELD(m_cKeyR));
    Add1(VFIELD(m_cKeyG));
    Add1(VFIELD(m_cKeyB));
  }
  RegisterCompatFlags(version, 214, 214);
  if (version >= 221 && version < 260) Add4(&g_nDropped, 1, "retired");
  RegisterCompatFlags(version, 261, 261);
  if (version >= 272) Add4(VFIELD(m_bDeathEffect));
  if (version >= 287) Add4(VFIELD(m_bInvincibleEffect));
  if (version >= 515) Add4(VFIELD(m_iEffectSpeed));
  if (version >= 289) Add4(VFIELD(m_bColorAnime));
  if (version >= 757) Add4(VFIELD(m_bStoryToMap));
  RegisterCompatFlags(version, 525, 695);
  if (version >= 696) Add4(VFIELD(m_iReserved696));
  RegisterCompatFlags(version, 697, 913);
  if (version >= 670) {
    Add4(VFIELD(m_iBppD3D));
    Add4(VFIELD(m_iBppDD));
  }
  if (version >= 880) Add4(VFIELD(m_bEndAfterStage));
}

void cEdSystem::LoadParts(cDataFile& file, uint32_t version) {
  LoadBytes(m_abStock, file);
  if (version >= 501) LoadBytes(m_abStockReset, file);
  LoadVector(m_vecGauges, file);
  LoadInts(m_aiLives, file);
  if (version >= 191) LoadInts(m_abInfinite, file);
  if (version >= 186) LoadVector(m_vecRanking, file);
  LoadStrings(m_vecTerms, file);
  LoadStrings(m_vecSounds, file);
  LoadInts(m_aiBgm, file);
  if (version >= 202) LoadBytes(m_abBgmLoop, file);
  LoadVector(m_vecTitleMenu, file);
  LoadVector(m_vecMapMenu, file);
  LoadVector(m_vecOptionMenu, file);
  if (version >= 674) LoadStrings(m_vecRankKinds, file);
  LoadVector(m_vecOptions, file);
}

void cEdSystem::Load(cDataFile& file) {
  const uint32_t version = g_nFileVersion;
  cSaveData::Load(file);
  LoadParts(file, version);
  if (version < kCurrentVersion) RepairOldSystemFile(*this, version);
  FitPartSizes();
  CheckBgmIndices();
}

void cEdSystem::Save(cDataFile& file) {
  CheckBgmIndices();
  cSaveData::Save(file);
  SaveBytes(m_abStock, file);
  SaveBytes(m_abStockReset, file);
  SaveVector(m_vecGauges, file);
  SaveInts(m_aiLives, file);
  SaveInts(m_abInfinite, file);
  SaveVector(m_vecRanking, file);
  SaveStrings(m_vecTerms, file);
  SaveStrings(m_vecSounds, file);
  SaveInts(m_aiBgm, file);
  SaveBytes(m_abBgmLoop, file);
  SaveVector(m_vecTitleMenu, file);
  SaveVector(m_vecMapMenu, file);
  SaveVector(m_vecOptionMenu, file);
  SaveStrings(m_vecRankKinds, file);
  SaveVector(m_vecOptions, file);
}

void cEdSystem::VisitNested(cNestedVisitor& visitor) const {
  VisitNumbers(visitor, "m_abStock", m_abStock);
  VisitNumbers(visitor, "m_abStockReset", m_abStockReset);
  VisitVector(visitor, "m_vecGauges", m_vecGauges);
  VisitNumbers(visitor, "m_aiLives", m_aiLives);
  VisitNumbers(visitor, "m_abInfinite", m_abInfinite);
  VisitVector(visitor, "m_vecRanking", m_vecRanking);
  visitor.Texts("m_vecTerms", m_vecTerms);
  visitor.Texts("m_vecSounds", m_vecSounds);
  VisitNumbers(visitor, "m_aiBgm", m_aiBgm);
  VisitNumbers(visitor, "m_abBgmLoop", m_abBgmLoop);
  VisitVector(visitor, "m_vecTitleMenu", m_vecTitleMenu);
  VisitVector(visitor, "m_vecMapMenu", m_vecMapMenu);
  VisitVector(visitor, "m_vecOptionMenu", m_vecOptionMenu);
  visitor.Texts("m_vecRankKinds", m_vecRankKinds);
  VisitVector(visitor, "m_vecOptions", m_vecOptions);
}

void cEdSystem::FitPartSizes() {
  m_abStock.resize(kStockCount);
  m_abStockReset.resize(kStockCount);
  m_vecGauges.resize(kGaugeCount);
  m_aiLives.resize(kModeCount);
  m_abInfinite.resize(kModeCount);
  m_vecRanking.resize(kModeCount);
  for (cEdSysRanking& ranking : m_vecRanking) ranking.m_abColumns.resize(cEdSysRanking::kColumnCount);
  m_vecTerms.resize(kTermCount);
  m_vecSounds.resize(kSoundCount);
  m_aiBgm.resize(kBgmCount);
  m_abBgmLoop.resize(kBgmCount);
  m_vecTitleMenu.resize(kTitleMenuCount);
  m_vecMapMenu.resize(kMapMenuCount);
  m_vecOptionMenu.resize(kOptionMenuCount);
  m_vecRankKinds.resize(kRankKindCount);
  m_vecOptions.resize(kOptionCount);
  m_vecReplaySaveKinds.resize(kReplayKindCount);
  m_vecReplayOrderKinds.resize(kReplayKindCount);
}

void cEdSystem::CheckBgmIndices() {
  // Before any music list was read there is nothing to check against, and
  // the rows are kept rather than lost.
  const int count = Database().Count(eDbList::Bgm);
  if (count == 0) return;
  for (int32_t& index : m_aiBgm) {
    if (index < 0 || index >= count) index = 0;
  }
}

cEdSystem& SystemRecord() {
  static cEdSystem record;
  return record;
}

}  // namespace velmora
