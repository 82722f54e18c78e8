#include "ui/database/EffectKindBinder.h"

#include <QColor>
#include <QImage>
#include <QLabel>
#include <algorithm>

#include "graphics/ProjectPalette.h"
#include "ui/controls/ComboRows.h"
#include "ui/controls/EditVal.h"
#include "ui/controls/Picture.h"
#include "ui/framework/Dialog.h"
#include "ui/framework/QtText.h"

namespace velmora {
namespace {

constexpr int kSwatchSize = 16;
constexpr int kFirstKind = 1;  // the combo box's first line; kind 0 has none

}  // namespace

cEffectKindBinder::cEffectKindBinder(const cEffectCatalog& catalog, bool colourKinds, int firstId)
    : m_catalog(catalog), m_bColourKinds(colourKinds), m_nFirstId(firstId) {}

std::vector<cFormRow> cEffectKindBinder::Rows(int32_t* kind, int32_t* params) {
  cComboRows kinds = TextRows(m_catalog.ChoiceNames());
  kinds.offset = kFirstKind;
  std::vector<cFormRow> rows = {
      {"効果", ComboOf(KindId(), kind, std::move(kinds))},
      {nullptr, cStaticDesc{NoteId(), ""}},
  };
  for (int slot = 0; slot < cEffectCatalog::kParamCount; ++slot) {
    rows.push_back({nullptr, cStaticDesc{LabelId(slot), ""}});
    rows.push_back({nullptr,
                    cEditValDesc{ParamId(slot), &params[slot], kWideParamMin, kWideParamMax, SpinId(slot), 1},
                    nullptr, nullptr, true});
    if (m_bColourKinds && slot == kColourSlot) {
      rows.push_back({nullptr, cPictureDesc{SwatchId(), kSwatchSize, kSwatchSize}, nullptr, nullptr, true});
    }
  }
  return rows;
}

bool cEffectKindBinder::IsParamId(int id) const { return id >= ParamId(0) && id < ParamId(cEffectCatalog::kParamCount); }

void cEffectKindBinder::FitTexts(cDialog& dialog) const {
  auto* note = qobject_cast<QLabel*>(dialog.Item(NoteId()));
  auto* label = qobject_cast<QLabel*>(dialog.Item(LabelId(0)));
  if (!note || !label) return;
  int noteWidth = 0;
  int labelWidth = 0;
  const QFontMetrics metrics = label->fontMetrics();
  for (int kind = 0; kind < m_catalog.KindCount(); ++kind) {
    noteWidth = std::max(noteWidth, metrics.boundingRect(QRect(), 0, FromCp932(m_catalog.Note(kind))).width());
    for (int slot = 0; slot < cEffectCatalog::kParamCount; ++slot) {
      const QString text = FromCp932(m_catalog.Param(kind, slot).m_strLabel);
      labelWidth = std::max(labelWidth, metrics.horizontalAdvance(text));
    }
  }
  note->setMinimumWidth(noteWidth);
  for (int slot = 0; slot < cEffectCatalog::kParamCount; ++slot) {
    if (QWidget* item = dialog.Item(LabelId(slot))) item->setFixedWidth(labelWidth);
  }
}

void cEffectKindBinder::WidenLimits(cDialog& dialog) const {
  for (int slot = 0; slot < cEffectCatalog::kParamCount; ++slot) {
    if (auto* edit = dialog.FindControlOf<cEditVal>(ParamId(slot))) edit->SetRange(kWideParamMin, kWideParamMax);
  }
}

void cEffectKindBinder::ShowKind(cDialog& dialog, int kind, const int32_t* params) const {
  const cEffectKindView view = EffectKindView(m_catalog, kind, m_bColourKinds);
  dialog.SetItemText(NoteId(), view.note);
  for (int slot = 0; slot < cEffectCatalog::kParamCount; ++slot) {
    const cEffectSlotView& shown = view.params[slot];
    dialog.SetItemText(LabelId(slot), shown.label);
    if (auto* edit = dialog.FindControlOf<cEditVal>(ParamId(slot))) {
      edit->SetRange(shown.minimum, shown.maximum);
      edit->Enable(shown.enabled);
    }
  }
  ShowSwatch(dialog, kind, params);
}

void cEffectKindBinder::RecordShown(cDialog& dialog, int kind, const int32_t* params) {
  m_tracker.RecordShown(kind);
  ShowKind(dialog, kind, params);
}

void cEffectKindBinder::KindChosen(cDialog& dialog, int kind, int32_t (&params)[cEffectCatalog::kParamCount]) {
  const bool filled = m_tracker.KindChosen(m_catalog, kind, params);
  ShowKind(dialog, kind, params);
  if (!filled) return;
  for (int slot = 0; slot < cEffectCatalog::kParamCount; ++slot) {
    if (cControl* edit = dialog.FindControl(ParamId(slot))) edit->Refresh();
  }
}

void cEffectKindBinder::ShowSwatch(cDialog& dialog, int kind, const int32_t* params) const {
  const bool shown = EffectKindView(m_catalog, kind, m_bColourKinds).colourSwatch;
  if (QWidget* item = dialog.Item(SwatchId())) item->setVisible(shown);
  auto* swatch = dialog.FindControlOf<cPicture>(SwatchId());
  if (!shown || !swatch) return;
  const int colour = params[kColourSlot];
  const cColourRef rgb = colour >= 0 && colour < 256 ? ColourOf(ProjectPalette()[static_cast<size_t>(colour)]) : 0;
  swatch->BeginDraw().fill(QColor(RedOf(rgb), GreenOf(rgb), BlueOf(rgb)));
  swatch->Present();
}

}  // namespace velmora
