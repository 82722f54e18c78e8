#include "stage/TestPlay.h"

#include <cerrno>
#include <cstring>

#include "core/GameProgram.h"
#include "core/Log.h"
#include "core/Prompt.h"
#include "core/SystemText.h"
#include "platform/Clock.h"
#include "platform/FileSystem.h"
#include "platform/MessageChannel.h"
#include "platform/Process.h"
#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "stage/StageHistory.h"

namespace velmora {
namespace {

cTestPlayHost* g_host = nullptr;
uint32_t g_testPlayStart = 0;  // clock value at the start of the last test play
// A game under wine can't reach the editor's socket, so the end of its
// process ends the test play too; -1 while no such game runs.
int g_wineGame = -1;

void Show(const char* utf8) { ErrorBoxText(SysText(utf8)); }

// Checked before anything is saved: without wine the game can't start.
bool WineReadyFor(const std::string& program) {
  if (!RunsUnderWine(program) || FoundOnPath(kWineCommand)) return true;
  ErrorBox(SysText("ゲームプログラム %s は Windows のプログラムです。\n動かすには wine が必要です。\n"
                   "wine パッケージをインストールして下さい（sudo apt-get install wine）。"),
           program.c_str());
  return false;
}

// A held key must not raise the double-start message; a real second start
// after the repeat time does.
void RefuseSecondStart() {
  if (TestPlayHost().Now() - g_testPlayStart < kTestPlayRepeatMs) return;
  Show("二重起動はできません！\n\n二重起動ではないのにこのエラーが出る場合、次の原因が考えられます。\n"
       "・前回のテストプレイで不正終了している（この場合エディター再起動で直る）\n"
       "・エディタープログラムとゲームプログラムのバージョンが合っていない");
}

// Writes what the game reads. False, with the message shown, when the
// stage can't be played.
bool SaveForGame() {
  cStageEdit& edit = StageEdit();
  if (edit.m_strPath.empty()) {
    Show("ステージファイルのパスが無効です！\n1度はステージを保存しないと、テストプレイは実行できません！");
    return false;
  }
  if (!EditStage().HasPlayer()) {
    Show("プレイヤーが配置されていません！");
    return false;
  }
  if (!SaveStage(1)) {
    Show("ステージファイルのパスが無効です！\n1度ステージを保存する必要があります！");
    return false;
  }
  if (!SaveCommonPalette()) ReportLine("test play: the common palette could not be saved");
  edit.m_bStageChanged = 0;
  TestPlayHost().ClearHistory();
  TestPlayHost().RedrawStageWindow();
  return true;
}

}  // namespace

uint32_t cTestPlayHost::Now() { return NowMs(); }

void cTestPlayHost::ClearHistory() { velmora::ClearHistory(); }

void cTestPlayHost::AllocHistory() { RebuildHistory(); }

bool cTestPlayHost::StartGame(const std::string& program, const std::vector<std::string>& args) {
  bool searchPath = false;
  const std::vector<std::string> command = GameCommand(program, args, searchPath);
  int pid = -1;
  if (StartProcess(command, FullHostPath("."), searchPath, &pid)) {
    g_wineGame = RunsUnderWine(program) ? pid : -1;
    return true;
  }
  ReportFormat("test play: %s cannot be started: %s", command[0].c_str(), std::strerror(errno));
  return false;
}

cTestPlayHost& TestPlayHost() {
  static cTestPlayHost fallback;
  return g_host ? *g_host : fallback;
}

void SetTestPlayHost(cTestPlayHost* host) { g_host = host; }

int TestPlay(int whole) {
  cStageEdit& edit = StageEdit();
  std::string program;
  if (!FindGameProgram(program)) {
    Show("ゲームプログラムが見つかりません！");
    return 0;
  }
  if (!WineReadyFor(program)) return 0;
  if (edit.m_bTestPlay) {
    RefuseSecondStart();
    return 0;
  }
  g_testPlayStart = TestPlayHost().Now();
  edit.m_bTestPlay = 1;
  if (edit.m_bHasStage && !SaveForGame()) {
    edit.m_bTestPlay = 0;
    return 0;
  }
  std::vector<std::string> args;
  if (!whole && !edit.m_strPath.empty()) args.push_back(edit.m_strPath);
  if (!TestPlayHost().StartGame(program, args)) {
    edit.m_bTestPlay = 0;
    Show("ゲームプログラムが呼び出せません！");
    return 0;
  }
  TestPlayHost().ClearActiveFlag();
  TestPlayHost().ShowTestPlayState();
  return 1;
}

void OnTestPlayEnd() {
  cStageEdit& edit = StageEdit();
  if (!edit.m_strPath.empty()) TestPlayHost().AllocHistory();
  TestPlayHost().ActivateStageWindow();
  edit.m_bTestPlay = 0;
  TestPlayHost().ShowTestPlayState();
}

void TakeGameMessages(cMessageReceiver& receiver) {
  uint32_t id = 0;
  while (receiver.Receive(id)) {
    if (id == kGameEndedMessage) OnTestPlayEnd();
  }
  TakeEndedGames();
}

void TakeEndedGames() {
  for (const int pid : CollectEndedProcesses()) {
    if (pid != g_wineGame) continue;
    g_wineGame = -1;
    // The end message may have come first.
    if (StageEdit().m_bTestPlay) OnTestPlayEnd();
  }
}

}  // namespace velmora
