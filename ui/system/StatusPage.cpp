#include "project/SystemGaugeRules.h"
#include "project/SystemLabels.h"
#include "ui/controls/ComboRows.h"
#include "ui/framework/Commands.h"
#include "ui/system/HelpDialog.h"
#include "ui/system/SystemPage.h"
#include "ui/system/SystemPageIds.h"
#include "ui/system/SystemPages.h"

namespace velmora {
namespace {

constexpr int kGaugeTextChars = 5;
constexpr int kMaxThreshold = 999999;
constexpr int kKindChars = 16;

// One of the game's three menus: its entries, their ids and text limit.
struct cMenuRows {
  const char* title;
  std::vector<cEdSysMenuItem> cEdSystem::*entries;
  int onId;
  int textId;
  int chars;
};
const cMenuRows kMenus[] = {
    {"タイトルメニュー", &cEdSystem::m_vecTitleMenu, kIdTitleMenuOn, kIdTitleMenuText, 8},
    {"ワールドマップメニュー", &cEdSystem::m_vecMapMenu, kIdMapMenuOn, kIdMapMenuText, 8},
    {"オプションメニュー", &cEdSystem::m_vecOptionMenu, kIdOptionMenuOn, kIdOptionMenuText, 16},
};

// A list of texts that the game offers to choose from.
struct cKindRows {
  const char* title;
  std::vector<std::string> cEdSystem::*texts;
  int id;
};
const cKindRows kKinds[] = {
    {"「ランキング登録」の種類", &cEdSystem::m_vecRankKinds, kIdRankKind},
    {"リプレイ自動保存", &cEdSystem::m_vecReplaySaveKinds, kIdReplaySaveKind},
    {"リプレイ再生順", &cEdSystem::m_vecReplayOrderKinds, kIdReplayOrderKind},
};

// Page 4 (250): the items of the game's status window, its three menus,
// the lists of kinds it offers and the help of its option menu.
class cStatusPage : public cSystemPage {
 public:
  cStatusPage(cDialogManager& manager, cEdSystem& work) : cSystemPage(manager, work, "system 4") {
    std::vector<cFormRow> kinds = {
        MenuGroup(kMenus[2]),
        {nullptr, cCheckDesc{kIdShowHelp, &Work().m_bShowHelp, "説明を表示"}},
        {nullptr, cButtonDesc{kIdEditHelp, "説明の編集"}, nullptr, nullptr, true},
    };
    for (const cKindRows& list : kKinds) kinds.push_back(KindGroup(list));
    SetRows({FormColumns({
        {FormGroup("ステータスウインドウ", RepeatRows(cEdSystem::kGaugeCount, [this](int g) { return GaugeRows(g); }))},
        {MenuGroup(kMenus[0]), MenuGroup(kMenus[1])},
        kinds,
    })});
  }

 protected:
  void UpdateEnables() override {
    for (int gauge = 0; gauge < cEdSystem::kGaugeCount; ++gauge) {
      const cGaugeUse use = GaugeUse(IsChecked(kIdGaugeShow + gauge), IsChecked(kIdGaugeSymbol + gauge));
      EnableControl(kIdGaugeSymbol + gauge, use.symbol);
      EnableControl(kIdGaugeText + gauge, use.text);
      EnableControl((IsBarGauge(gauge) ? kIdGaugeShowValue : kIdGaugeDigits) + gauge, use.detail);
    }
    for (const cMenuRows& menu : kMenus) {
      const int entries = static_cast<int>((Work().*menu.entries).size());
      for (int entry = 0; entry < entries; ++entry) EnableControl(menu.textId + entry, IsChecked(menu.onId + entry));
    }
  }

  void OnDialogCommand(int id, int notice) override {
    if (id != kIdEditHelp || notice != kNoticeClicked) return;
    cHelpDialog dialog(Manager(), Window(), Work().m_strHelp);
    dialog.DoModal(kDisableOthers);
  }

 private:
  std::vector<cFormRow> GaugeRows(int gauge) {
    cEdSysGauge& g = Work().m_vecGauges[static_cast<size_t>(gauge)];
    std::vector<cFormRow> rows = {
        {nullptr, cCheckDesc{kIdGaugeShow + gauge, &g.m_bShow, "表示"}},
        {nullptr, cCheckDesc{kIdGaugeSymbol + gauge, &g.m_bSymbol, "シンボルを表示"}, nullptr, nullptr, true},
        {"文字", CharsEdit(kIdGaugeText + gauge, &g.m_strText, kGaugeTextChars)},
    };
    if (!IsBarGauge(gauge)) {
      rows.push_back({"最大桁数", SpinEdit(kIdGaugeDigits + gauge, &g.m_iDigits, 1, GaugeDigitsMax(gauge))});
      return {FormGroup(GaugeTable.Utf8(gauge), std::move(rows))};
    }
    rows.push_back({nullptr, cCheckDesc{kIdGaugeShowValue + gauge, &g.m_bShowValue, "数値を表示"}});
    rows.push_back({"HPとSPのバーの色が変わる条件",
                    SpinEdit(kIdGaugeThreshold + gauge, &g.m_iBarThreshold, 0, kMaxThreshold)});
    rows.push_back({nullptr, ComboOf(kIdGaugeUnit + gauge, &g.m_bBarPercent, LabelRows(BarUnitTable)), nullptr,
                    nullptr, true});
    return {FormGroup(GaugeTable.Utf8(gauge), std::move(rows))};
  }

  cFormRow MenuGroup(const cMenuRows& menu) {
    std::vector<cEdSysMenuItem>& entries = Work().*menu.entries;
    return FormGroup(menu.title, RepeatRows(static_cast<int>(entries.size()), [&](int entry) {
                       cEdSysMenuItem& item = entries[static_cast<size_t>(entry)];
                       const cEditStrDesc text = CharsEdit(menu.textId + entry, &item.m_strText, menu.chars);
                       return std::vector<cFormRow>{
                           {nullptr, cCheckDesc{menu.onId + entry, &item.m_bEnabled}},
                           {nullptr, text, nullptr, nullptr, true},
                       };
                     }));
  }

  cFormRow KindGroup(const cKindRows& list) {
    std::vector<std::string>& texts = Work().*list.texts;
    return FormGroup(list.title, RepeatRows(static_cast<int>(texts.size()), [&](int row) {
                       return std::vector<cFormRow>{
                           {nullptr, CharsEdit(list.id + row, &texts[static_cast<size_t>(row)], kKindChars)}};
                     }));
  }
};

}  // namespace

std::unique_ptr<cDialog> MakeStatusPage(cDialogManager& manager, cEdSystem& work) {
  return std::make_unique<cStatusPage>(manager, work);
}

}  // namespace velmora
