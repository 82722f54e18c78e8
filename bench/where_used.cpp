// Builds the where-used index of a project of 100 stages of 512 x 512, each
// with ground, enemies and items whose flows name variables, sounds and
// animations, and asks it for things; then changes one stage and updates.
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <string>

#include "core/ProjectPaths.h"
#include "objects/CmdTable.h"
#include "objects/CondTables.h"
#include "objects/GValInfo.h"
#include "objects/Palette.h"
#include "platform/HeapPolicy.h"
#include "project/whereused/WhereUsedIndex.h"
#include "stage/Stage.h"
#include "ThreadClock.h"

namespace {

using namespace velmora;

constexpr int kStages = 100;
constexpr int kSide = 512;
constexpr int kEnemiesPerStage = 400;
constexpr int kItemsPerStage = 300;
constexpr int kQueries = 200;

using bench::ThreadMs;

cEdCmd Cmd(int kind) {
  cEdCmd cmd;
  cmd.SetUpNew(kind, false);
  return cmd;
}

// An enemy that reads and writes variables `n` and `n + 1` and plays sounds.
cEdChara Enemy(int n) {
  cEdChara enemy;
  enemy.m_strName = "enemy" + std::to_string(n);
  enemy.m_nGraphicNo = 2;
  enemy.m_nControl = 1;
  enemy.m_vFlow.resize(3);
  for (cEdFlow& flow : enemy.m_vFlow) {
    cEdCond cond;
    cond.m_nKind = kCondCommonVar;
    cond.m_nLeftVar = static_cast<int16_t>(n % 999 + 1);
    flow.m_vCond.push_back(cond);
    cEdCmd code = Cmd(kCmdCode);
    code.m_strText = "C" + std::to_string(n % 999 + 1) + " = S" + std::to_string((n + 1) % 999 + 1) + " + 1";
    flow.m_vCmd.push_back(code);
    cEdCmd sound = Cmd(kCmdSound);
    sound.m_vParam[0] = n % 20 + 1;
    flow.m_vCmd.push_back(sound);
    flow.m_vCmd.push_back(Cmd(kCmdWait));
  }
  return enemy;
}

void WriteStage(int number) {
  cStage stage;
  stage.InitDefault();
  stage.SetSize(kSide, kSide, 0, 0);
  for (int v = 1; v < kStageVarCount; ++v) stage.m_vecStageVar[static_cast<size_t>(v)].m_strName = "s" + std::to_string(v);
  cEdBlock ground;
  ground.m_nGraphicNo = 1;
  for (int x = 0; x < kSide; ++x) {
    for (int y = kSide - 2; y < kSide; ++y) stage.m_vecBlockCell[static_cast<size_t>(stage.CellIndex(x, y))] = ground;
  }
  for (int i = 0; i < kEnemiesPerStage; ++i) {
    stage.m_vecCharaCell[static_cast<size_t>(stage.CellIndex(i % kSide, kSide - 3 - i / kSide * 8))] = Enemy(number + i);
  }
  cEdItem coin;
  coin.m_nGraphicNo = 3;
  coin.m_nGetSound = 4;
  for (int i = 0; i < kItemsPerStage; ++i) {
    stage.m_vecItemCell[static_cast<size_t>(stage.CellIndex(i % kSide, kSide - 6 - i / kSide * 8))] = coin;
  }
  char path[64];
  std::snprintf(path, sizeof path, "data\\stg4\\Stage%03d.stg4_950", number);
  stage.SaveFile(path);
}

void WriteProject() {
  g_vecCommonVar.assign(kCommonVarCount, cStageVar());
  for (int v = 1; v < kCommonVarCount; ++v) g_vecCommonVar[static_cast<size_t>(v)].m_strName = "var" + std::to_string(v);
  SaveCommonVars();
  cPalette palette;
  palette.m_vecBlockPlt.resize(2);
  palette.m_vecItemPlt.resize(2);
  palette.m_vecCharaPlt.resize(1);
  for (int i = 1; i <= 50; ++i) palette.m_vecCharaPlt.push_back(Enemy(i));
  palette.SaveFile(PathOf(ePath::CommonPalette));
  for (int i = 0; i < kStages; ++i) WriteStage(i);
}

}  // namespace

int main() {
  // As the editor runs.
  KeepLayersInHeap();
  const std::filesystem::path folder = std::filesystem::temp_directory_path() / ("velmora-bench-whereused-" + std::to_string(::getpid()));
  std::filesystem::create_directories(folder);
  std::filesystem::current_path(folder);
  for (const char* sub : {"data/stg4", "data/database"}) std::filesystem::create_directories(sub);
  WriteProject();

  cWhereUsedIndex index;
  double start = ThreadMs();
  index.Update();
  std::printf("BENCH where_used_build_ms %.1f ms target <= 2000\n", ThreadMs() - start);

  size_t found = 0;
  start = ThreadMs();
  for (int q = 0; q < kQueries; ++q) found += index.Find({q % 2 ? eUseKind::VarStage : eUseKind::VarCommon, q * 5 % 999 + 1}).size();
  std::printf("BENCH where_used_query_ms %.3f ms target <= 10\n", (ThreadMs() - start) / kQueries);
  std::printf("BENCH where_used_uses_per_query %.0f uses\n", static_cast<double>(found) / kQueries);

  WriteStage(7);
  start = ThreadMs();
  const int read = index.Update();
  std::printf("BENCH where_used_update_ms %.1f ms (%d file read)\n", ThreadMs() - start, read);

  std::filesystem::current_path(std::filesystem::temp_directory_path());
  std::filesystem::remove_all(folder);
  return 0;
}
