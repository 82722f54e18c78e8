#include "inspect/WhereUsed.h"

#include "inspect/ProjectNames.h"
#include "platform/TextCodec.h"
#include "project/ProjectRefSizes.h"
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

int WhereUsed(const std::string& kind, const std::string& number, std::string& out, std::string& err) {
  const std::optional<cUseTarget> target = ParseUseTarget(kind, number);
  if (!target) {
    err += "velmora-inspect: where-used takes one of " + KindWords() + " and a number from 0\n";
    return 2;
  }
  // Stages read with the project's lists, as the editor reads them, and
  // lines name variables as the project does.
  LoadProjectNames(ePalette::Stage);
  if (!InstallProjectRefSizes()) err += "velmora-inspect: no project data here; references are not checked\n";
  cWhereUsedIndex index;
  index.Update();
  for (const cWhereUsedIndex::cFound& found : index.Find(*target)) out += ToUtf8(UseLineText(*found.file, *found.use)) + "\n";
  for (const std::string& file : index.UnreadableFiles()) err += "velmora-inspect: " + file + " can't be read; not searched\n";
  return 0;
}

}  // namespace velmora::inspect
