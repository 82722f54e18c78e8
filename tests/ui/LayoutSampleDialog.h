#pragma once
#include <array>

#include "SampleDialog.h"
#include "objects/CondTables.h"
#include "ui/controls/ComboRows.h"

namespace velmora::testing {

// A record for a dialog of many fields: two sides of a comparison, a row
// of keys and a page of a hundred numbers.
struct cLayoutRecord {
  int32_t nLeftType = 1;
  int32_t nLeftValue = 11;
  int32_t nLeftX = 3;
  int32_t nLeftY = 4;
  int32_t nRightType = 2;
  int32_t nRightValue = 22;
  std::array<int32_t, 6> anKey{};
  std::array<int32_t, 100> anValue{};
};

enum eLayoutIds {
  kIdLeftType = 2201, kIdLeftValue, kIdLeftX, kIdLeftY, kIdRightType, kIdRightValue,
  kIdKeyBase = 2300,    // one per key
  kIdValueBase = 2400,  // one per number
};

inline constexpr const char* kSampleKeys[] = {"←", "→", "↑", "↓", "Z", "X"};
inline constexpr const char* kValueLabel = "値";
inline constexpr int kValueCount = 100;

// Columns with nested groups, a block repeated from a table and a scroll
// area, all stated as one table.
class cLayoutSampleDialog : public cDialog {
 public:
  cLayoutSampleDialog(cDialogManager& manager, cLayoutRecord& record) : cDialog(manager, nullptr) {
    SetTitle(QString::fromUtf8("レイアウト"));
    const cComboRows sides = SysTextRows({"定数", "変数", "乱数"});
    m_form.rows = {
        FormColumns({
            {FormGroup("左辺", {
                 {"タイプ", ComboOf(kIdLeftType, &record.nLeftType, sides)},
                 {"値", cEditValDesc{kIdLeftValue, &record.nLeftValue, -999, 999, 0, 1}},
                 FormGroup("座標", {
                     {"X", cEditValDesc{kIdLeftX, &record.nLeftX, 0, 99, 0, 1}, nullptr, "(dot)"},
                     {"Y", cEditValDesc{kIdLeftY, &record.nLeftY, 0, 99, 0, 1}, nullptr, "(dot)"},
                 }),
             })},
            {FormGroup("右辺", {
                 {"タイプ", ComboOf(kIdRightType, &record.nRightType, sides)},
                 {"値", cEditValDesc{kIdRightValue, &record.nRightValue, -999, 999, 0, 1}},
             })},
        }),
        FormScroll({
            FormGroup("キー", RepeatRows(6, [&record](int i) -> std::vector<cFormRow> {
                        return {{kSampleKeys[i], ComboOf(kIdKeyBase + i, &record.anKey[static_cast<size_t>(i)],
                                                         LabelRows(KeyStateTable))}};
                      })),
            FormRows(RepeatRows(kValueCount, [&record](int i) -> std::vector<cFormRow> {
              const size_t at = static_cast<size_t>(i);
              return {{kValueLabel, cEditValDesc{kIdValueBase + i, &record.anValue[at], 0, 9999, 0, 1}}};
            })),
        }),
    };
  }

 private:
  static cComboRows SysTextRows(std::initializer_list<const char*> utf8) { return TextRows(SysTexts(utf8)); }
};

}  // namespace velmora::testing
