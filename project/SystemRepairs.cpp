#include "project/SystemRepairs.h"

#include <iterator>

#include "core/SystemText.h"
#include "project/CompatFlags.h"
#include "project/SystemRecord.h"
#include "project/StreamParts.h"

namespace velmora {
namespace {

using S = cEdSystem;

// Fields whose value for a file older than their gate differs from what a
// new record has, or must be stated all the same.
struct cOldValue {
  int32_t S::*member;
  uint32_t gate;
  int32_t value;
};

const cOldValue kOldValues[] = {
    {&S::m_b1UpOnClear, 185, 1},       {&S::m_bPause, 838, 1},           {&S::m_iFont, 205, 60},
    {&S::m_bEvenPitch, 170, 0},        {&S::m_bTestFlowAlways, 113, 0},  {&S::m_iCharaDraw, 855, 1},
    {&S::m_bReplaySave, 184, 1},       {&S::m_bOldFileDialog, 943, 1},   {&S::m_bTitleImage, 157, 0},
    {&S::m_bAutoSaveStart, 821, 0},    {&S::m_bShowHelp, 932, 0},        {&S::m_bMapOnDeath, 191, 0},
    {&S::m_bMapShowLives, 191, 0},     {&S::m_bStoryHighScore, 167, 1},  {&S::m_bStoryTotalScore, 167, 1},
    {&S::m_bStoryRestore, 188, 1},     {&S::m_bStoryRetry, 224, 0},      {&S::m_bChallHighScore, 167, 1},
    {&S::m_bChallTotalScore, 167, 1},  {&S::m_bChallRestore, 188, 1},    {&S::m_bChallRetry, 224, 0},
    {&S::m_bFreeRestore, 188, 1},      {&S::m_bTestRestore, 192, 1},     {&S::m_iBmpDepth, 187, 0},
    {&S::m_bDeathEffect, 272, 0},      {&S::m_bInvincibleEffect, 287, 0}, {&S::m_iEffectSpeed, 515, 16},
    {&S::m_bStoryToMap, 757, 0},       {&S::m_iReserved696, 696, 1},     {&S::m_iBppD3D, 670, 0},
    {&S::m_iBppDD, 670, 2},
};

void RepairScalars(S& s, uint32_t version) {
  for (const cOldValue& old : kOldValues) {
    if (version < old.gate) s.*old.member = old.value;
  }
  // These depend on values repaired just above.
  if (version < 943) s.m_bReplayManual = s.m_bReplaySave;
  if (version < 289) s.m_bColorAnime = s.m_iBmpDepth == 0;
  if (version < 187) {
    s.m_cKeyR = 0;
    s.m_cKeyG = 177;
    s.m_cKeyB = 0;
  }
  for (const cCompatFlag& flag : CompatFlags()) {
    if (version < flag.gate) s.*flag.member = flag.ValueForOldFile(version);
  }
  if (version < 191) s.m_abInfinite = {0, 0, 0, 1};
}

void InsertTerm(S& s, size_t index, const char* utf8) {
  s.m_vecTerms.resize(S::kTermCount);
  InsertKeepingSize(s.m_vecTerms, index, std::string(SysText(utf8)));
}

void InsertStock(S& s, size_t index, uint8_t value) {
  s.m_abStock.resize(S::kStockCount);
  InsertKeepingSize(s.m_abStock, index, value);
}

void InsertMenuItem(std::vector<cEdSysMenuItem>& menu, size_t count, size_t index, bool enabled, const char* utf8) {
  menu.resize(count);
  InsertKeepingSize(menu, index, cEdSysMenuItem(enabled, utf8));
}

cEdSysOption NumberOption(const char* key, int32_t value) { return {cEdSysOption::TypeNumber, key, value}; }

void InsertOption(S& s, size_t index, const char* key, int32_t value) {
  s.m_vecOptions.resize(S::kOptionCount);
  InsertKeepingSize(s.m_vecOptions, index, NumberOption(key, value));
}

void SetOption(S& s, size_t index, const char* key, int32_t value) {
  s.m_vecOptions.resize(S::kOptionCount);
  s.m_vecOptions[index] = NumberOption(key, value);
}

// Two music rows were inserted behind row 3; each took the music of the
// row it was inserted at, so both start as row 3.
template <class T>
void SplitMusicRows(std::vector<T>& rows) {
  rows.resize(S::kBgmCount);
  const T third = rows[3];
  InsertKeepingSize(rows, 3, third);
  InsertKeepingSize(rows, 4, third);
}

struct cRepair {
  uint32_t below;
  void (*apply)(S&);
};

const cRepair kRepairs[] = {
    {168, [](S& s) { InsertStock(s, 16, 1); }},
    {169,
     [](S& s) {
       InsertMenuItem(s.m_vecMapMenu, S::kMapMenuCount, 1, true, "オートセーブ");
       InsertTerm(s, 12, "保存先が不明です！一度は「セーブ」して下さい！");
       InsertTerm(s, 12, "オートセーブＯＦＦ");
       InsertTerm(s, 12, "オートセーブＯＮ");
     }},
    {181,
     [](S& s) {
       for (cEdSysRanking& ranking : s.m_vecRanking) {
         ranking.m_abColumns.resize(cEdSysRanking::kColumnCount);
         ranking.m_abColumns[3] = ranking.m_abColumns[4] = 0;
       }
       InsertTerm(s, 8, "残りHP");
       InsertTerm(s, 9, "残りSP");
     }},
    {193,
     [](S& s) {
       InsertTerm(s, 22, "リトライ");
       InsertTerm(s, 23, "マップへ戻る");
     }},
    {201, [](S& s) { InsertStock(s, 14, 0); }},
    {202, [](S& s) { s.m_abBgmLoop.assign(S::kBgmCount, 1); }},
    {210, [](S& s) { InsertStock(s, 9, 0); }},
    {286,
     [](S& s) {
       InsertOption(s, 0, "Direct3D", 1);
       if (s.m_vecOptions[3].m_iDefault >= 3) s.m_vecOptions[3].m_iDefault = 2;
     }},
    {501, [](S& s) { s.m_abStockReset.assign(S::kStockCount, 0); }},
    {567, [](S& s) { InsertOption(s, 4, "DD_VideoStretch", 0); }},
    {568,
     [](S& s) {
       InsertOption(s, 4, "D3D_FontCache", 0);
       InsertOption(s, 5, "DD_FontCache", 1);
     }},
    {587,
     [](S& s) {
       s.m_vecGauges.resize(S::kGaugeCount);
       for (size_t bar : {2, 3}) {
         s.m_vecGauges[bar].m_iBarThreshold = 33;
         s.m_vecGauges[bar].m_bBarPercent = 1;
       }
     }},
    {672, [](S& s) { SetOption(s, 9, "English", 0); }},
    {756, [](S& s) { InsertTerm(s, 22, "マップへ戻る"); }},
    {842, [](S& s) { SetOption(s, 10, "Midi_DirectMusic", 1); }},
    {932,
     [](S& s) {
       InsertMenuItem(s.m_vecOptionMenu, S::kOptionMenuCount, 5, false, "リプレイ自動保存");
       InsertMenuItem(s.m_vecOptionMenu, S::kOptionMenuCount, 6, false, "リプレイ再生順");
       InsertTerm(s, 23, "次のリプレイへ");
       InsertTerm(s, 24, "前のリプレイへ");
       s.m_bShowHelp = 0;
       s.m_strHelp = DefaultSystemHelp();
     }},
    {934,
     [](S& s) { InsertMenuItem(s.m_vecOptionMenu, S::kOptionMenuCount, 7, false, "リプレイのメッセージ自動進行秒数"); }},
    {942,
     [](S& s) {
       SplitMusicRows(s.m_aiBgm);
       SplitMusicRows(s.m_abBgmLoop);
     }},
    {943,
     [](S& s) {
       InsertTerm(s, 25, "リプレイの選択へ");
       const char* const replayKeys[] = {"Cキー：ソートの切り替え", "Vキー：エクスプローラーで開く",
                                         "Aキー：ファイル情報の更新", "更新日時順↓（推奨）", "更新日時順↑",
                                         "ファイル名順↓", "ファイル名順↑"};
       for (size_t i = 0; i < std::size(replayKeys); ++i) s.m_vecTerms[32 + i] = SysText(replayKeys[i]);
     }},
};

}  // namespace

void RepairOldSystemFile(cEdSystem& system, uint32_t fileVersion) {
  RepairScalars(system, fileVersion);
  for (const cRepair& repair : kRepairs) {
    if (fileVersion < repair.below) repair.apply(system);
  }
}

}  // namespace velmora
