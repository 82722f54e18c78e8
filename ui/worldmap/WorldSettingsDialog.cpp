#include "ui/worldmap/WorldSettingsDialog.h"

#include "project/WorldMap.h"
#include "ui/controls/ColourSwatch.h"
#include "ui/controls/PathBrowse.h"
#include "ui/controls/Picture.h"
#include "ui/framework/Commands.h"
#include "ui/framework/QtText.h"

namespace velmora {
namespace {

constexpr int kPathLimit = 260;
constexpr int kSwatchWidth = 32;
constexpr int kSwatchHeight = 16;

}  // namespace

cWorldSettingsDialog::cWorldSettingsDialog(cDialogManager& manager, QWidget* parent, cWorldSettings& settings)
    : cRecordDialog(manager, parent, settings) {
  SetTitle(Ui("ワールドマップの設定"));
  SetLogName("DLG_WORLDSETTINGS");
  cWorldSettings& w = Work();
  m_form.rows = {
      {"横幅", cEditValDesc{kIdWidth, &w.width, 20, cEdWorldMap::kMaxWidth}},
      {"縦幅", cEditValDesc{kIdHeight, &w.height, 15, cEdWorldMap::kMaxHeight}},
      {"初期位置 X", cEditValDesc{kIdStartX, &w.startX, 0, cEdWorldMap::kMaxWidth - 1}},
      {"初期位置 Y", cEditValDesc{kIdStartY, &w.startY, 0, cEdWorldMap::kMaxHeight - 1}},
      {"背景色", cEditValDesc{kIdBackColor, &w.backColor, 16, 207}},
      {nullptr, cPictureDesc{kIdSwatch, kSwatchWidth, kSwatchHeight}, nullptr, nullptr, true},
      {nullptr, cCheckDesc{kIdUseBackImage, &w.useBackImage, "背景画像を使用する"}},
      {"背景画像", EditStrLine(kIdBackPath, &w.backPath, kPathLimit)},
      {nullptr, cButtonDesc{kIdBrowse, "参照"}, nullptr, nullptr, true},
      {nullptr, cStaticDesc{0, "※背景色→背景画像の順で表示されます。"}},
  };
}

// The swatch shows the colour as it is typed.
void cWorldSettingsDialog::UpdateEnables() {
  auto* swatch = FindControlOf<cPicture>(kIdSwatch);
  if (!swatch) return;
  ApplyAll();
  ShowProjectColour(*swatch, Work().backColor);
}

void cWorldSettingsDialog::OnDialogCommand(int id, int notice) {
  if (id != kIdBrowse || notice != kNoticeClicked) return;
  BrowseIntoEdit(*this, kIdBackPath, FilePromptOf("背景画像の選択", "bmp\\", "BitmapFile ( *.bmp )", "*.bmp", "bmp"));
}

}  // namespace velmora
