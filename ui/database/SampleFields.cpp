#include "ui/database/SampleFields.h"

#include "project/AnimeSampleRules.h"
#include "ui/controls/ComboRows.h"
#include "ui/controls/EditVal.h"
#include "ui/database/ObjectListDialog.h"
#include "ui/framework/Dialog.h"

namespace velmora {

std::vector<cFormRow> cSampleFields::Rows(cEdAnime& sample) const {
  const cSampleLimits widest = SampleLimits(kGraphicKindOwnBmp, 0);
  return {
      {"サンプル", ComboOf(KindId(), &sample.m_cSampleKind,
                          {SysTexts({"ブロック", "キャラ", "アイテム", "ショット", "専用bmp"}), 0, nullptr})},
      {nullptr, cEditValDesc{NumberId(), &sample.m_iSampleNo, 1, cObjectListDialog::kLastNumber, NumberSpinId(), 1},
       nullptr, nullptr, true},
      {nullptr, cButtonDesc{ListId(), "一覧"}, nullptr, nullptr, true},
      {"コマ（開始位置）", cEditValDesc{CellId(), &sample.m_iSampleCell, 0, static_cast<double>(widest.cellMax), CellSpinId(), 1}},
  };
}

void cSampleFields::ShowLimits(cDialog& dialog, int kind, int charaBmpCount) const {
  const cSampleLimits limits = SampleLimits(kind, charaBmpCount);
  if (auto* number = dialog.FindControlOf<cEditVal>(NumberId())) number->SetRange(limits.numberMin, limits.numberMax);
  if (auto* cell = dialog.FindControlOf<cEditVal>(CellId())) cell->SetRange(0, limits.cellMax);
  dialog.EnableControl(CellId(), limits.cellEnabled);
  dialog.EnableControl(ListId(), limits.listEnabled);
}

void cSampleFields::ApplyLimits(cDialog& dialog, int kind, int charaBmpCount) const {
  ShowLimits(dialog, kind, charaBmpCount);
  for (int id : {NumberId(), CellId()}) {
    if (cControl* edit = dialog.FindControl(id)) edit->Commit();
  }
}

bool cSampleFields::Pick(cDialog& dialog, cEdAnime& sample) const {
  cObjectListDialog list(dialog.Manager(), dialog.Window(), sample.m_cSampleKind, sample.m_iSampleNo);
  if (list.DoModal(cDialog::kDisableOthers) != 1) return false;
  if (cControl* number = dialog.FindControl(NumberId())) number->Refresh();
  return true;
}

}  // namespace velmora
