#include <QApplication>
#include <QElapsedTimer>
#include <QListWidget>
#include <cstdio>
#include <cstdlib>

#include "SampleFolder.h"
#include "ThreadClock.h"
#include "WidgetPaint.h"
#include "core/EditConfig.h"
#include "objects/CmdTable.h"
#include "objects/Palette.h"
#include "ui/app/EditorApp.h"
#include "ui/entries/EntryEditor.h"
#include "ui/entries/EntryIds.h"
#include "ui/entries/OpenEntryEditor.h"

namespace {

constexpr int kFlows = 99;
constexpr int kCommandsPerFlow = 99;
constexpr int kFlowPage = 3;
constexpr int kSwitchRounds = 50;

// The player of the common palette given the most flows an author is
// likely to write, each as long, of every kind of command in turn.
void FillPlayer() {
  std::vector<velmora::cEdFlow> flows(kFlows);
  int kind = 0;
  for (velmora::cEdFlow& flow : flows) {
    flow.m_vCmd.resize(kCommandsPerFlow);
    for (velmora::cEdCmd& cmd : flow.m_vCmd) {
      cmd.SetUpNew(kind, false);
      kind = (kind + 1) % static_cast<int>(velmora::CmdTable.size());
    }
  }
  velmora::CommonPalette().m_vecCharaPlt.at(1).m_vFlow = std::move(flows);
}

}  // namespace

// The character editor opened on its flow page for a player with 99 flows
// of 99 commands, up to its first painted page, and another flow selected
// with the command list painted anew, without a display.
int main(int argc, char** argv) {
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  QApplication application(argc, argv);
  const velmora::bench::cSampleFolder folder("entries");
  if (!folder.Made()) return 1;
  velmora::cEditorApp editor;
  if (!editor.Start()) {
    std::fprintf(stderr, "the editor did not start\n");
    return 1;
  }
  FillPlayer();
  velmora::EditorConfig().m_anEditPage[velmora::kKindChara] = kFlowPage;
  QElapsedTimer clock;
  clock.start();
  const velmora::cPaletteSide commonCharas{0, velmora::kKindChara};
  if (!velmora::EditPaletteEntry(editor.Manager(), editor.StageWindow()->Window(), commonCharas, 1, [](int) {})) {
    std::fprintf(stderr, "the editor did not open\n");
    return 1;
  }
  velmora::cEntryEditorBase* sheet = velmora::OpenEntryEditor();
  velmora::bench::Paint(sheet->Window());
  std::printf("BENCH chara_editor_open_ms %.1f ms target <= 200\n", clock.nsecsElapsed() / 1e6);

  velmora::cDialog* page = sheet->CurrentPage();
  auto* flows = qobject_cast<QListWidget*>(page->Item(velmora::kIdFlowList));
  QWidget* commands = page->Item(velmora::kIdCmdList);
  int round = 0;
  const double switchMs = velmora::bench::AverageMs(kSwitchRounds, [&] {
    flows->setCurrentRow(++round % kFlows);
    velmora::bench::Paint(commands);
  });
  std::printf("BENCH flow_switch_ms %.3f ms target <= 16\n", switchMs);
  sheet->Close(0);
  return 0;
}
