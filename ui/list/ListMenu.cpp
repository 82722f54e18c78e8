#include "ui/list/ListMenu.h"

#include "core/ListCommands.h"

namespace velmora {
namespace {

// Menu texts by command; append has no menu entry, only its key.
constexpr const char* kMenuTexts[kListCommandCount] = {
    "切り取り", "コピー", "貼り付け", nullptr, "新規挿入", "データのクリア", "削除",
};

}  // namespace

std::vector<cMenuItem> ListPopupMenu(int listNumber, int family) {
  const ListCommandIds ids = ListMenuIds(listNumber, family);
  std::vector<cMenuItem> menu;
  for (int i = 0; i < kListCommandCount; ++i) {
    if (ids[i] != 0 && kMenuTexts[i]) menu.push_back({ids[i], kMenuTexts[i]});
  }
  return menu;
}

}  // namespace velmora
