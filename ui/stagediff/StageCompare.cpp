#include "ui/stagediff/StageCompare.h"

#include <memory>

#include "core/Log.h"
#include "core/Prompt.h"
#include "core/SystemText.h"
#include "graphics/stageview/StageView.h"
#include "platform/HostPath.h"
#include "stage/StageDiff.h"
#include "ui/controls/PathBrowse.h"
#include "ui/stage/StageWindow.h"

namespace velmora {
namespace {

std::vector<cCellFrame> MarksAgainst(const cStage& other) {
  std::vector<cCellFrame> marks;
  for (const cCellPos& at : ChangedPositions(DiffStageCells(other, EditStage()))) {
    marks.push_back({at.x, at.y, 1, 1, kChangeMarkColour});
  }
  return marks;
}

void CompareWithFile(cStageWindow& window) {
  std::string chosen;
  const cFilePrompt request = FilePromptOf("比較するステージファイルの選択", "data\\stg4\\", "StageFile ( *.stg4_* )", "*.stg4_*");
  if (!Prompt().OpenFile(window.Window(), request, chosen)) return;
  // A file read only in part would show damage as differences.
  auto other = std::make_unique<cStage>();
  if (!other->LoadWholeFile(StoredPath(chosen))) {
    ErrorBox(SysText("ステージファイル %s の読み込みに失敗しました！\n比較はしていません。"), chosen.c_str());
    return;
  }
  std::vector<cCellFrame> marks = MarksAgainst(*other);
  if (marks.empty()) {
    Prompt().Ask(window.Window(), SysText("比較"), SysText("配置に違いはありません。"), eButtons::Ok, eIcon::Information);
  }
  window.SetMarks(std::move(marks));
}

}  // namespace

void InstallStageCompare(cStageWindow& stage) {
  stage.SetHandler(eMenuAction::Compare, [&stage] { CompareWithFile(stage); });
  stage.SetHandler(eMenuAction::CompareClear, [&stage] { stage.SetMarks({}); });
}

}  // namespace velmora
