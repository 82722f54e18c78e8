#include "ui/database/ImagePages.h"

#include <QListWidget>

#include "graphics/FixedBitmaps.h"
#include "project/DatabaseRowText.h"
#include "ui/controls/Picture.h"
#include "ui/controls/RowList.h"
#include "ui/database/AnimePreviewPlayer.h"
#include "ui/database/DbFilePage.h"
#include "ui/database/FrameDialogs.h"
#include "ui/database/SwordPosDialog.h"
#include "ui/list/RecordListControl.h"
#include "ui/palette/SurfaceImage.h"

namespace velmora {
namespace {

constexpr int kMaxPositions = 99;
constexpr int kChipGraphicMax = 74;
constexpr int kChipNameLimit = 8;
constexpr int kChipSheetColumns = 5;
constexpr int kChipCell = 32;
constexpr int kShownSteps = 6;

}  // namespace

// Page 4: the positions of a swing, each edited in dialog 223.
class cSwordTypePage : public cDbFilePage<cEdSwordType> {
 public:
  cSwordTypePage(cDialogManager& manager, cDatabaseWork& work)
      : cDbFilePage(manager, work.db.m_SwordType.m_vecEntries, DbListInfo(eDbList::SwordType).rule,
                    {{&cEdSwordType::m_strLeftPath, eFileField::Sword, "ビットマップ（左向き用）"},
                     {&cEdSwordType::m_strRightPath, eFileField::Sword, "ビットマップ（右向き用）"}}) {
    m_positions.m_nMin = 1;
    m_positions.m_nMax = kMaxPositions;
    m_positions.m_RowText = [](int, const cEdSwordPos& pos) { return SwordPosRowText(pos); };
    m_positions.m_Edit = [this](cEdSwordPos& pos, bool) {
      cSwordPosDialog dialog(Manager(), Window(), pos);
      return dialog.DoModal(kDisableOthers) == 1;
    };
    m_positions.SetData(&Work().m_vecPositions);
    std::vector<cFormRow> rows = FileRows();
    rows.push_back(FormGroup("ソードの位置",
                             {RecordListRows({kIdSwordPositions, kIdSwordInsert, kIdSwordEdit, kIdSwordDelete, 2})}));
    SetFieldRows(std::move(rows));
  }

 protected:
  void BeforeRecordShown() override { m_positions.SetData(&Work().m_vecPositions); }
  void BindOwnControls() override {
    cDbFilePage::BindOwnControls();
    if (auto* list = BindRecordList(*this, {kIdSwordPositions, kIdSwordInsert, kIdSwordEdit, kIdSwordDelete, 2},
                                    m_positions)) {
      list->onChanged = [this] { m_fields.StoreWork(); };
    }
  }

 private:
  cRecordListEdit<cEdSwordPos> m_positions;
};

// Page 5: an effect's picture, its cell size and its steps, edited in
// dialog 236.
class cEffectPage : public cDbFilePage<cEdEffect> {
 public:
  cEffectPage(cDialogManager& manager, cDatabaseWork& work)
      : cDbFilePage(manager, work.db.m_Effect.m_vecEntries, DbListInfo(eDbList::Effect).rule,
                    {{&cEdEffect::m_strPath, eFileField::Effect, "パス"}}) {
    cEdEffect& effect = Work();
    std::vector<cFormRow> rows = FileRows();
    rows.push_back({"横幅", cEditValDesc{kIdEffectWidth, &effect.m_iWidth, 1, 640}});
    rows.push_back({"縦幅", cEditValDesc{kIdEffectHeight, &effect.m_iHeight, 1, 480}});
    rows.push_back({nullptr, cCheckDesc{kIdEffectGiant, &effect.m_bAllowGiant, "巨大化を許可"}});
    rows.push_back(RowListRow(kIdEffectFrames, kShownSteps, "アニメ"));
    rows.push_back({nullptr, cButtonDesc{kIdEffectEditFrames, "アニメの編集"}});
    SetFieldRows(std::move(rows));
  }

 protected:
  void BindOwnControls() override {
    cDbFilePage::BindOwnControls();
    auto* steps = qobject_cast<QListWidget*>(Item(kIdEffectFrames));
    if (!steps) return;
    AddControl(std::make_unique<cRowList>(*this, steps, kIdEffectFrames, [this] {
      std::vector<std::string> rows;
      for (const cEdEffectFrame& frame : Work().m_vecFrames) rows.push_back(EffectFrameRowText(frame));
      return rows;
    }, kIdEffectEditFrames));
  }
  bool OnPageCommand(int id) override {
    if (id != kIdEffectEditFrames) return cDbFilePage::OnPageCommand(id);
    if (Edit().GetSel() < 0) return true;
    cEffectFramesDialog dialog(Manager(), Window(), Work().m_vecFrames);
    if (dialog.DoModal(kDisableOthers) == 1) StoreAndShow();
    return true;
  }
};

// Page 11: a chip of the world map, shown from bmp\WorldMapChip.bmp.
class cWorldChipPage : public cDbListPage<cEdWorldChip> {
 public:
  cWorldChipPage(cDialogManager& manager, cDatabaseWork& work)
      : cDbListPage(manager, work.chips, kWorldChipRule) {
    std::vector<cFormRow> rows = NameRows(kChipNameLimit);
    rows.push_back({"グラフィック",
                    cEditValDesc{kIdChipGraphic, &Work().m_iGraphic, 0, kChipGraphicMax, kIdChipGraphicSpin, 1}});
    rows.push_back({nullptr, cPictureDesc{kIdChipPreview, kChipCell, kChipCell}, nullptr, nullptr, true});
    rows.push_back({nullptr, cCheckDesc{kIdChipBlocked, &Work().m_bBlocked, "移動不可"}});
    SetFieldRows(std::move(rows));
  }

 protected:
  void AfterRecordShown() override {
    ShowChip();
    cDbListPage::AfterRecordShown();
  }
  void OnFieldChanged(int id) override {
    if (id == kIdChipGraphic) ShowChip();
  }

 private:
  // The chip's cell of the sheet, five cells a row; a missing sheet shows
  // nothing.
  void ShowChip() {
    const int graphic = Work().m_iGraphic;
    cSurface& chip = m_chip;
    if (!chip.IsLoaded() && !chip.CreateSurface(kChipCell, kChipCell, 32, false)) return;
    chip.Fill(0);
    const cSurface& sheet = FixedBitmap(kFixedWorldChip);
    if (sheet.IsLoaded() && graphic >= 0 && graphic <= kChipGraphicMax) {
      chip.Blt(0, 0, kChipCell, kChipCell, sheet, graphic % kChipSheetColumns * kChipCell,
               graphic / kChipSheetColumns * kChipCell, false);
    }
    if (auto* picture = FindControlOf<cPicture>(kIdChipPreview)) picture->Show(ToImage(chip));
  }

  cSurface m_chip;
};

template std::unique_ptr<cDialog> MakePage<cSwordTypePage>(cDialogManager&, cDatabaseWork&);
template std::unique_ptr<cDialog> MakePage<cEffectPage>(cDialogManager&, cDatabaseWork&);
template std::unique_ptr<cDialog> MakePage<cWorldChipPage>(cDialogManager&, cDatabaseWork&);

}  // namespace velmora
