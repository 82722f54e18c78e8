#include "objects/ObjectList.h"

#include "core/SystemText.h"

namespace velmora {
namespace {

eObjectContext g_context = eObjectContext::CharaEditor;

const char* FirstRow(eObjectContext context) {
  const bool self = context == eObjectContext::CharaEditor || context == eObjectContext::ItemCommandDialog;
  return SysText(self ? "自分" : "主人公");
}

}  // namespace

std::vector<const char*> ObjectList(eObjectContext context, bool withSystem) {
  std::vector<const char*> rows = {FirstRow(context), SysText("ターゲット1"), SysText("ターゲット2"),
                                   SysText("ターゲット3"), SysText("ターゲット4")};
  if (withSystem) rows.push_back(SysText("システム"));
  return rows;
}

const char* ObjectLabel(eObjectContext context, int row) {
  const std::vector<const char*> rows = ObjectList(context, true);
  return row >= 0 && static_cast<size_t>(row) < rows.size() ? rows[static_cast<size_t>(row)] : "";
}

eObjectContext CurrentObjectContext() { return g_context; }
void SetObjectContext(eObjectContext context) { g_context = context; }

}  // namespace velmora
