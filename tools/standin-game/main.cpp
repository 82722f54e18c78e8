// A stand-in for the game program, so that a test play can be tried end to
// end without the real game: it reads the stage it is given with the
// project's own library, writes what it found to Report_StandinGame.txt in
// the project folder, and tells the editor that it has ended.

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "core/GameMark.h"
#include "stage/TestPlay.h"
#include "platform/FileSystem.h"
#include "platform/MessageChannel.h"
#include "platform/TextCodec.h"
#include "project/ProjectRefSizes.h"
#include "stage/Stage.h"

VELMORA_GAME_MARK();

namespace velmora {
namespace {

const char kReportName[] = "Report_StandinGame.txt";

template <class T>
int Occupied(const cStage& stage, const std::vector<T>& cells) {
  int count = 0;
  for (int y = 0; y < stage.m_nHeight; ++y) {
    for (int x = 0; x < stage.m_nWidth; ++x) {
      const size_t index = static_cast<size_t>(stage.CellIndex(x, y));
      if (index < cells.size() && cells[index].m_nGraphicNo != 0) ++count;
    }
  }
  return count;
}

std::string DescribeStage(const std::string& path, bool& ok) {
  InstallProjectRefSizes();
  cStage& stage = EditStage();
  ok = stage.LoadFile(path) != 0;
  if (!ok) return "stage " + path + "\nerror cannot read the stage\n";
  const cCellPos player = stage.FindPlayer();
  char text[512];
  std::snprintf(text, sizeof text, "stage %s\nname %s\nsize %d x %d\nblocks %d\ncharacters %d\nitems %d\nplayer %d %d\n",
                path.c_str(), ToUtf8(stage.m_strName).c_str(), stage.m_nWidth, stage.m_nHeight,
                Occupied(stage, stage.m_vecBlockCell), Occupied(stage, stage.m_vecCharaCell),
                Occupied(stage, stage.m_vecItemCell), player.x, player.y);
  return text;
}

// Tests give their own channel, so that they never reach an editor that
// runs beside them.
std::string ChannelName() {
  const char* name = std::getenv("VELMORA_EDITOR_CHANNEL");
  return name && *name ? name : EditorChannelName();
}

int Run(int argc, char** argv) {
  if (argc > 2) {
    std::fputs("usage: velmora-standin-game [STAGE]\n", stderr);
    return 2;
  }
  bool ok = true;
  const std::string report = argc == 2 ? DescribeStage(argv[1], ok) : "whole game\n";
  std::FILE* out = OpenFile(kReportName, "wb");
  if (out) {
    std::fputs(report.c_str(), out);
    std::fclose(out);
  }
  // The editor waits for this whatever happened here.
  if (!SendChannelMessage(ChannelName(), kGameEndedMessage)) {
    std::fputs("velmora-standin-game: no editor listens\n", stderr);
    return 1;
  }
  return ok && out ? 0 : 1;
}

}  // namespace
}  // namespace velmora

int main(int argc, char** argv) { return velmora::Run(argc, argv); }
