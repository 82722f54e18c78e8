#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "core/SaveData.h"
#include "project/SystemParts.h"

namespace velmora {

// The settings of the whole game, kept in data\System.dat. The game program
// acts on nearly all of them; the editor uses the colour key of the
// project's bitmaps and the "System.ini" defaults.
class cEdSystem : public cSaveData {
 public:
  // Fixed lengths of the parts behind the blocks.
  static constexpr int kStockCount = 25;
  static constexpr int kGaugeCount = 5;
  static constexpr int kModeCount = 4;  // story, challenge, free, single stage test
  static constexpr int kTermCount = 39;
  static constexpr int kSoundCount = 17;
  static constexpr int kBgmCount = 6;
  static constexpr int kTitleMenuCount = 7;
  static constexpr int kMapMenuCount = 4;
  static constexpr int kOptionMenuCount = 9;
  static constexpr int kRankKindCount = 4;
  static constexpr int kOptionCount = 11;
  static constexpr int kReplayKindCount = 3;

  std::string m_strGameTitle;
  int32_t m_b1UpOnClear = 0;
  int32_t m_i1UpScore = 0;
  int32_t m_bPause = 0;
  int32_t m_bPauseHideObjects = 0;
  int32_t m_bSymbols = 0;
  int32_t m_iFont = 0;  // row of the font table
  int32_t m_bEvenPitch = 0;
  int32_t m_bTestFlowAlways = 0;
  int32_t m_iCharaDraw = 0;
  int32_t m_bReplaySave = 0;
  int32_t m_bReplayManual = 0;
  int32_t m_iReplayFileName = 0;
  int32_t m_bOldFileDialog = 0;
  int32_t m_bTitleImage = 0;
  int32_t m_bAutoSaveStart = 0;
  int32_t m_bShowHelp = 0;
  std::string m_strHelp;
  int32_t m_bShareLives = 0;
  int32_t m_bMapOnDeath = 0;
  int32_t m_bMapShowLives = 0;
  int32_t m_bAutoSaveEachStage = 0;
  int32_t m_iChallengeWorlds = 0;
  int32_t m_bChallengeAllWorlds = 0;
  int32_t m_bStoryHighScore = 0;
  int32_t m_bStoryTotalScore = 0;
  int32_t m_bStoryRestore = 0;
  int32_t m_bStoryRetry = 0;
  int32_t m_bChallHighScore = 0;
  int32_t m_bChallTotalScore = 0;
  int32_t m_bChallRestore = 0;
  int32_t m_bChallRetry = 0;
  int32_t m_bFreeRestore = 0;
  int32_t m_bTestRestore = 0;
  int32_t m_iBmpDepth = 0;  // 0: 256 colours with a palette, 1: 24 bits
  // The transparent colour of 24-bit bitmaps, 0 to 255 each.
  uint8_t m_cKeyR = 0;
  uint8_t m_cKeyG = 0;
  uint8_t m_cKeyB = 0;
  int32_t m_bDeathEffect = 0;
  int32_t m_bInvincibleEffect = 0;
  int32_t m_iEffectSpeed = 0;
  int32_t m_bColorAnime = 0;
  int32_t m_bStoryToMap = 0;
  int32_t m_iReserved696 = 0;  // carried unchanged
  int32_t m_iBppD3D = 0;
  int32_t m_iBppDD = 0;
  int32_t m_bEndAfterStage = 0;
  int32_t m_bCompat214 = 0;
  int32_t m_bCompat261 = 0;
  int32_t m_bCompat525 = 0;
  int32_t m_bCompat555 = 0;
  int32_t m_bCompat637 = 0;
  int32_t m_bCompat669 = 0;
  int32_t m_bCompat677 = 0;
  int32_t m_bCompat695 = 0;
  int32_t m_bCompat697 = 0;
  int32_t m_bCompat721 = 0;
  int32_t m_bCompat728 = 0;
  int32_t m_bCompat733 = 0;
  int32_t m_bCompat744 = 0;
  int32_t m_bCompat749 = 0;
  int32_t m_bCompat752 = 0;
  int32_t m_bCompat763_1 = 0;
  int32_t m_bCompat763_2 = 0;
  int32_t m_bCompat768 = 0;
  int32_t m_bCompat773 = 0;
  int32_t m_bCompat781 = 0;
  int32_t m_bCompat782 = 0;
  int32_t m_bCompat783 = 0;
  int32_t m_bCompat793 = 0;
  int32_t m_bCompat805 = 0;
  int32_t m_bCompat808 = 0;
  int32_t m_bCompat818_1 = 0;
  int32_t m_bCompat818_2 = 0;
  int32_t m_bCompat819 = 0;
  int32_t m_bCompat822 = 0;
  int32_t m_bCompat827 = 0;
  int32_t m_bCompat831 = 0;
  int32_t m_bCompat833 = 0;
  int32_t m_bCompat837 = 0;
  int32_t m_bCompat839 = 0;
  int32_t m_bCompat841 = 0;
  int32_t m_bCompat845_1 = 0;
  int32_t m_bCompat845_2 = 0;
  int32_t m_bCompat845_3 = 0;
  int32_t m_bCompat845_4 = 0;
  int32_t m_bCompat861 = 0;
  int32_t m_bCompat875 = 0;
  int32_t m_bCompat894 = 0;
  int32_t m_bCompat895 = 0;
  int32_t m_bCompat896 = 0;
  int32_t m_bCompat897 = 0;
  int32_t m_bCompat904 = 0;
  int32_t m_bCompat912 = 0;
  int32_t m_bCompat913 = 0;

  std::vector<uint8_t> m_abStock;
  std::vector<uint8_t> m_abStockReset;
  std::vector<cEdSysGauge> m_vecGauges;
  std::vector<int32_t> m_aiLives;
  std::vector<int32_t> m_abInfinite;
  std::vector<cEdSysRanking> m_vecRanking;
  std::vector<std::string> m_vecTerms;
  std::vector<std::string> m_vecSounds;  // wave\ files of the frame program
  std::vector<int32_t> m_aiBgm;          // rows of the music list, 0 for none
  std::vector<uint8_t> m_abBgmLoop;
  std::vector<cEdSysMenuItem> m_vecTitleMenu;
  std::vector<cEdSysMenuItem> m_vecMapMenu;
  std::vector<cEdSysMenuItem> m_vecOptionMenu;
  std::vector<std::string> m_vecRankKinds;
  std::vector<cEdSysOption> m_vecOptions;
  // Edited by the pages but never stored: they hold their defaults at
  // every start.
  std::vector<std::string> m_vecReplaySaveKinds;
  std::vector<std::string> m_vecReplayOrderKinds;

  cEdSystem() { SetUp(); }
  void SetUp();
  void Load(cDataFile& file) override;
  void Save(cDataFile& file) override;
  void VisitNested(cNestedVisitor& visitor) const override;

  // Music rows the music list does not have become "none".
  void CheckBgmIndices();
  // Gives every part its fixed number of rows, so a short or damaged file
  // never leaves the pages with rows missing.
  void FitPartSizes();

 protected:
  void Register(uint32_t version) override;

 private:
  void RegisterCompatFlags(uint32_t version, uint32_t fromGate, uint32_t toGate);
  void LoadParts(cDataFile& file, uint32_t version);
};

// The default of the options menu's help text, which the help dialog can
// also bring back. CP932.
const std::string& DefaultSystemHelp();

cEdSystem& SystemRecord();

}  // namespace velmora
