#include "project/SystemLabels.h"
#include "ui/system/SystemPage.h"
#include "ui/system/SystemPageIds.h"
#include "ui/system/SystemPages.h"

namespace velmora {
namespace {

// The terms by where the game shows them: a run of rows in one group.
struct cTermGroup {
  const char* title;
  int first;
  int last;
};
const cTermGroup kColumns[][5] = {
    {{"名称", 0, 4}, {"ランキングの項目", 5, 9}, {"ワールドマップ：ステージに挑むか", 10, 11},
     {"ワールドマップ：セーブするか", 12, 13}, {"オートセーブ", 14, 16}},
    {{"タイトルへ戻るか", 17, 18}, {"ポーズメニュー", 19, 25}, {"死亡後のメニュー", 26, 27}},
    {{"操作の説明", 28, 34}, {"リプレイの並び順", 35, 38}},
};

// Page 5 (251): the words the game shows, each within its limit.
class cTermsPage : public cSystemPage {
 public:
  cTermsPage(cDialogManager& manager, cEdSystem& work) : cSystemPage(manager, work, "system 5") {
    std::vector<std::vector<cFormRow>> columns;
    for (const auto& groups : kColumns) {
      std::vector<cFormRow>& column = columns.emplace_back();
      for (const cTermGroup& group : groups) {
        if (group.title) column.push_back(FormGroup(group.title, TermRows(group)));
      }
    }
    SetRows({FormGroup("用語", {FormColumns(std::move(columns))})});
  }

 private:
  std::vector<cFormRow> TermRows(const cTermGroup& group) {
    return RepeatRows(group.last - group.first + 1, [&](int row) {
      const int term = group.first + row;
      return std::vector<cFormRow>{
          {nullptr, CharsEdit(kIdTerm + term, &Work().m_vecTerms[static_cast<size_t>(term)], TermCharLimit(term))}};
    });
  }
};

}  // namespace

std::unique_ptr<cDialog> MakeTermsPage(cDialogManager& manager, cEdSystem& work) {
  return std::make_unique<cTermsPage>(manager, work);
}

}  // namespace velmora
