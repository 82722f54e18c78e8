#include "ui/entries/AnimeSetListDialog.h"

#include <QString>

#include "graphics/AnimePreview.h"
#include "objects/code/VarCombo.h"
#include "project/Database.h"
#include "ui/framework/Commands.h"
#include "ui/controls/ThumbnailGrid.h"
#include "ui/palette/SurfaceImage.h"

namespace velmora {
namespace {

constexpr int kIdGrid = 1003;
constexpr int kIdChosenName = 1004;
constexpr int kVisibleRows = 8;

const std::vector<cEdAnimeSet>& AnimeSets() { return Database().m_AnimeSet.m_vecEntries; }

// A set without slots, as a damaged file may hold, shows an empty cell.
QImage StandingPicture(const cEdAnimeSet& set) {
  cSurface cell;
  cObjectLook look;
  look.number = 0;
  if (!set.m_vecAnime.empty()) look = AnimePreviewLook(set.m_vecAnime.front(), 0, 0);
  DrawAnimePreview(cell, look);
  return ToImage(cell);
}

std::vector<QImage> StandingPictures() {
  std::vector<QImage> pictures;
  pictures.reserve(AnimeSets().size());
  for (const cEdAnimeSet& set : AnimeSets()) pictures.push_back(StandingPicture(set));
  return pictures;
}

}  // namespace

cAnimeSetListDialog::cAnimeSetListDialog(cDialogManager& manager, QWidget* parent, int16_t& set)
    : cRecordDialog(manager, parent, set) {
  SetTitle(QString::fromUtf8("一覧"));
  SetLogName("anime set list");
  m_form.rows = {
      {nullptr, cCustomDesc{kIdGrid, [this](QWidget* parentWidget) -> QWidget* {
                              auto* grid = new cThumbnailGrid(parentWidget, StandingPictures(), Work());
                              grid->onChosen = [this](int chosen) { Pick(chosen); };
                              grid->onAccepted = [this] { SendCommand(MakeCommand(kIdOk, kNoticeClicked), 0); };
                              return ScrollingThumbnails(parentWidget, grid, kVisibleRows);
                            }}},
      {nullptr, cStaticDesc{kIdChosenName, ""}},
  };
}

void cAnimeSetListDialog::Pick(int set) {
  if (set < 0 || set >= static_cast<int>(AnimeSets().size())) return;
  Work() = static_cast<int16_t>(set);
  if (auto* grid = Window() ? Window()->findChild<cThumbnailGrid*>() : nullptr) grid->Choose(set);
  UpdateEnables();
}

void cAnimeSetListDialog::UpdateEnables() {
  const int set = Work();
  const bool listed = set >= 0 && set < static_cast<int>(AnimeSets().size());
  SetItemText(kIdChosenName, listed ? VarComboRowText(set, AnimeSets()[static_cast<size_t>(set)].m_strName) : "");
}

}  // namespace velmora
