#include "ui/conditions/KeyCondDialog.h"

#include <algorithm>

#include "objects/CondTables.h"
#include "ui/conditions/CondIds.h"
#include "ui/framework/QtText.h"

namespace velmora {
namespace {

constexpr int kFirstActionKey = 10;  // アクションキーニュートラル

// A file may hold fewer states than there are keys; the dialog shows the
// missing ones as "--". More stay as they are.
void GiveEveryKeyAState(cEdKeyCond& work) {
  if (work.m_vKeyState.size() < static_cast<size_t>(kKeyCount)) work.m_vKeyState.resize(kKeyCount);
}

std::vector<cFormRow> KeyRows(cEdKeyCond& w, int first, int end) {
  return RepeatRows(end - first, [&w, first](int index) {
    const int key = first + index;
    return std::vector<cFormRow>{
        {KeyNameTable.Utf8(key),
         ComboOf(kIdKeyState + key, &w.m_vKeyState[static_cast<size_t>(key)], LabelRows(KeyStateTable))}};
  });
}

std::vector<cFormRow> KeyCondRows(cEdKeyCond& w) {
  return {
      FormColumns({{FormGroup("方向キー", KeyRows(w, 0, kFirstActionKey))},
                   {FormGroup("アクションキー", KeyRows(w, kFirstActionKey, kKeyCount))}}),
      {nullptr, cCheckDesc{kIdKeyFrontBack, &w.m_bFrontBack, "「→」を「前」、「←」を「後ろ」に置き換える"}},
      {"「押」の入力時間(1/60s)",
       cEditValDesc{kIdKeyPressMin, &w.m_nPressMin, kPressTimeMin, kPressTimeMax, kIdKeyPressMinSpin, 1}},
      {"～", cEditValDesc{kIdKeyPressMax, &w.m_nPressMax, kPressTimeMin, kPressTimeMax, kIdKeyPressMaxSpin, 1}, nullptr,
       nullptr, true},
      {nullptr, cCheckDesc{kIdKeyPressAny, &w.m_bPressAny, "1～∞"}, nullptr, nullptr, true},
      {nullptr, cStaticDesc{kIdKeyNote, "※「離」は「1～∞」で固定される"}},
      {"判定タイプ", ComboOf(kIdKeyJudge, &w.m_nJudge, LabelRows(KeyJudgeTable))},
  };
}

bool TimeLimited(const cEdKeyCond& key) { return key.m_bPressAny == 0; }

const cRuleForm<cEdKeyCond> kKeyCondForm{
    .rows = KeyCondRows,
    .ranges = {{kIdKeyPressMax, PressMaxRange}},
    .enables = {{kIdKeyPressMin, TimeLimited}, {kIdKeyPressMax, TimeLimited}},
};

}  // namespace

cKeyCondDialog::cKeyCondDialog(cDialogManager& manager, QWidget* parent, cEdKeyCond& record)
    : cRuleDialog(manager, parent, record, kKeyCondForm, GiveEveryKeyAState) {
  SetTitle(Ui("キー条件"));
  SetLogName("key condition");
}

}  // namespace velmora
