#include "inspect/DiffStages.h"

#include "graphics/stageview/StageView.h"
#include "inspect/Inspector.h"
#include "inspect/ProjectNames.h"
#include "inspect/RenderStage.h"
#include "inspect/StageDiffText.h"
#include "platform/HostPath.h"
#include "project/ProjectRefSizes.h"
#include "stage/StageDiff.h"

namespace velmora::inspect {
namespace {

// A stage that fails halfway holds part of its file: comparing it would
// report differences that are only damage.
bool ReadWhole(const std::string& path, cStage& stage, std::string& err) {
  if (stage.LoadWholeFile(StoredPath(path))) return true;
  err += g_bFileTooNew ? ReadFailureText(path)
                       : "velmora-inspect: " + path + " is missing or damaged; nothing compared\n";
  return false;
}

std::vector<cCellFrame> ChangeMarks(const cStage& before, const cStage& after) {
  std::vector<cCellFrame> marks;
  for (const cCellPos& at : ChangedPositions(DiffStageCells(before, after))) {
    marks.push_back({at.x, at.y, 1, 1, kChangeMarkColour});
  }
  return marks;
}

}  // namespace

int DiffStages(const std::vector<std::string>& args, std::string& out, std::string& err) {
  // Lines name variables, entries and database rows as the project does.
  LoadProjectNames(ePalette::Stage);
  InstallProjectRefSizes();
  cStage before, after;
  if (!ReadWhole(args[1], before, err) || !ReadWhole(args[2], after, err)) return 1;
  for (const std::string& line : StageDiffLines(before, after)) out += line + "\n";
  return args.size() == 4 ? WriteStagePng(after, ChangeMarks(before, after), args[3], err) : 0;
}

}  // namespace velmora::inspect
