#include <span>

#include "objects/InheritGroups.h"
#include "objects/PaletteTables.h"
#include "ui/controls/ComboRows.h"
#include "ui/options/OptionIds.h"
#include "ui/options/OptionPages.h"

namespace velmora {
namespace {

// One column per kind of entry, its groups in the order of their flags.
struct cKindColumn {
  const char* title;
  int kind;
  int firstRow;  // of the kind's groups among all rows
};
constexpr int kInheritRowCount = kBlockInheritGroups + kCharaInheritGroups + kItemInheritGroups;
constexpr cKindColumn kKindColumns[] = {
    {"ブロック", kKindBlock, 0},
    {"キャラ", kKindChara, kBlockInheritGroups},
    {"アイテム", kKindItem, kBlockInheritGroups + kCharaInheritGroups},
};

// 「ステージ→配置」 takes its entries from the stage palette only.
const std::vector<int> kStagePlacedSources = {kInheritNone, kInheritStage};

template <class T>
std::vector<const char*> LabelsOf(std::span<const cInheritGroup<T>> groups) {
  std::vector<const char*> labels;
  for (const cInheritGroup<T>& group : groups) labels.push_back(group.label);
  return labels;
}

std::vector<const char*> GroupLabels(int kind) {
  if (kind == kKindBlock) return LabelsOf(BlockInheritGroups());
  if (kind == kKindChara) return LabelsOf(CharaInheritGroups());
  return LabelsOf(ItemInheritGroups());
}

cComboRows SourceRows(int moment) {
  if (moment != kMomentStagePlaced) return LabelRows(InheritSrcTable, kInheritNone, kInheritCommon + 1);
  cComboRows rows;
  for (int source : kStagePlacedSources) rows.texts.emplace_back(InheritSrcTable.Label(source));
  rows.conversion = &kStagePlacedSources;
  return rows;
}

// Page 146: for each kind the default source and the default flags of
// each group at the three moments. The opener has checked that every flag
// vector holds one flag per group.
class cInheritDefaultPage : public cDialog {
 public:
  cInheritDefaultPage(cDialogManager& manager, PrjOption& work) : cDialog(manager, nullptr), m_work(work) {
    SetLogName("project options 2");
    m_form.okCancel = false;  // the sheet's
    std::vector<std::vector<cFormRow>> columns;
    for (const cKindColumn& column : kKindColumns) columns.push_back({KindColumn(column)});
    m_form.rows = {FormScroll({
        FormColumns(std::move(columns)),
        {nullptr, cStaticDesc{0, "「ステージ」　　：ステージパレットに新しくデータを追加したとき\n"
                                 "「コモン→配置」：コモンパレットのデータをステージに配置したとき\n"
                                 "「ステージ→配置」：ステージパレットのデータをステージに配置したとき"}},
    })};
  }

 private:
  cFormRow KindColumn(const cKindColumn& column) {
    static const char* const kMomentLabels[] = {"「ステージ」", "「コモン→配置」", "「ステージ→配置」"};
    std::vector<cFormRow> sources;
    for (int moment = kMomentStage; moment <= kMomentStagePlaced; ++moment) {
      sources.push_back({kMomentLabels[moment], ComboOf(kIdDefSource + moment * 3 + column.kind,
                                                        &m_work.m_anDefSrc[moment][column.kind], SourceRows(moment))});
    }
    const std::vector<const char*> labels = GroupLabels(column.kind);
    return FormGroup(column.title,
                     {
                         FormGroup("継承パレットのデフォルト", std::move(sources)),
                         FormGroup("継承パラメーターのデフォルト",
                                   {
                                       {nullptr, cStaticDesc{0, "左から、「ステージ」、「コモン→配置」、「ステージ→配置」"}},
                                       FormRows(RepeatRows(static_cast<int>(labels.size()),
                                                           [&](int group) { return FlagRow(column, group, labels); })),
                                   }),
                     });
  }

  // The three boxes of a group, its label beside the last.
  std::vector<cFormRow> FlagRow(const cKindColumn& column, int group, const std::vector<const char*>& labels) {
    std::vector<cFormRow> row;
    for (int moment = kMomentStage; moment <= kMomentStagePlaced; ++moment) {
      const bool last = moment == kMomentStagePlaced;
      uint8_t* flag = &m_work.m_vDefFlags[moment][column.kind][static_cast<size_t>(group)];
      cFormRow box;
      box.control = cCheckDesc{kIdDefFlag + moment * kInheritRowCount + column.firstRow + group, flag,
                               last ? labels[static_cast<size_t>(group)] : ""};
      box.sameLine = moment != kMomentStage;
      row.push_back(std::move(box));
    }
    return row;
  }

  PrjOption& m_work;
};

}  // namespace

std::unique_ptr<cDialog> MakeInheritDefaultPage(cDialogManager& manager, PrjOption& work) {
  return std::make_unique<cInheritDefaultPage>(manager, work);
}

}  // namespace velmora
