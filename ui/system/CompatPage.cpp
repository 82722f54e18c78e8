#include "project/CompatFlags.h"
#include "ui/system/SystemPage.h"
#include "ui/system/SystemPageIds.h"
#include "ui/system/SystemPages.h"

namespace velmora {
namespace {

// Where each page's flags begin, by row in gate order; the last page runs
// to the end.
constexpr int kFirstFlagOfPage[kCompatPageCount] = {0, 13, 25, 39};

// Pages 7 to 10 (278, 282, 284, 286): the switches back to the behaviour
// of older versions, one check box per flag in gate order.
class cCompatPage : public cSystemPage {
 public:
  cCompatPage(cDialogManager& manager, cEdSystem& work, int part) : cSystemPage(manager, work, "system compat") {
    const std::span<const cCompatFlag> flags = CompatFlags();
    const int first = kFirstFlagOfPage[part];
    const int end = part + 1 < kCompatPageCount ? kFirstFlagOfPage[part + 1] : static_cast<int>(flags.size());
    std::vector<cFormRow> rows = {NoteRow("互換性 （あえて旧バージョンの動作をさせたい場合のみチェックを入れること）")};
    for (int row = first; row < end; ++row) {
      const cCompatFlag& flag = flags[static_cast<size_t>(row)];
      rows.push_back(CheckRow(kIdCompatFlag + row, &(Work().*flag.member), flag.text));
    }
    SetRows(std::move(rows));
  }
};

}  // namespace

std::unique_ptr<cDialog> MakeCompatPage(cDialogManager& manager, cEdSystem& work, int part) {
  return std::make_unique<cCompatPage>(manager, work, part);
}

}  // namespace velmora
