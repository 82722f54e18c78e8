#include "inspect/WhereUsed.h"

#include "inspect/ProjectNames.h"
#include "platform/TextCodec.h"
#include "project/ProjectRefSizes.h"
#include "project/whereused/StageFileList.h"
#include "project/whereused/WhereUsedIndex.h"

namespace velmora::inspect {
namespace {

std::string KindWords() {
  std::string words;
  for (int kind = 0; kind < static_cast<int>(eUseKind::Count); ++kind) {
    words += std::string(words.empty() ? "" : ", ") + UseKindWord(static_cast<eUseKind>(kind));
  }
  return words;
}

}  // namespace

int WhereUsed(const std::vector<std::string>& args, std::string& out, std::string& err) {
  const std::optional<cUseTarget> target = ParseUseTarget(args[1], args[2]);
  if (!target) {
    err += "velmora-inspect: where-used takes one of " + KindWords() + " and a number from 0\n";
    return 2;
  }
  const bool inStage = args.size() == 5 && args[3] == "--stage";
  if (args.size() != 3 && !inStage) {
    err += "velmora-inspect: where-used KIND N takes only --stage NAME after it\n";
    return 2;
  }
  if (IsStagePaletteKind(target->kind) && !inStage) {
    err += "velmora-inspect: " + args[1] + " is an entry of one stage's palette: name the stage with --stage NAME\n";
    return 2;
  }
  const std::string stage = inStage ? NewestStageFile(args[4]) : std::string();
  if (inStage && stage.empty()) {
    err += "velmora-inspect: no stage " + args[4] + " in data\\stg4\\\n";
    return 2;
  }
  // Stages read with the project's lists, as the editor reads them, and
  // lines name variables as the project does.
  LoadProjectNames(ePalette::Stage);
  if (!InstallProjectRefSizes()) err += "velmora-inspect: no project data here; references are not checked\n";
  cWhereUsedIndex index;
  index.Update();
  for (const cWhereUsedIndex::cFound& found : index.Find(*target, stage)) out += ToUtf8(UseLineText(*found.file, *found.use)) + "\n";
  for (const std::string& file : index.UnreadableFiles()) err += "velmora-inspect: " + file + " can't be read; not searched\n";
  return 0;
}

}  // namespace velmora::inspect
