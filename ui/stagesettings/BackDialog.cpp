#include "ui/stagesettings/BackDialog.h"

#include "ui/controls/Button.h"
#include "ui/controls/ColourSwatch.h"
#include "ui/controls/PathBrowse.h"
#include "ui/controls/Picture.h"
#include "ui/framework/Commands.h"
#include "ui/framework/QtText.h"
#include "ui/stagesettings/StageSettingsIds.h"

namespace velmora {
namespace {

constexpr int kPathLimit = 260;
constexpr int kFirstColour = 16;
constexpr int kLastColour = 207;
constexpr double kMaxSpeedX = 640;
constexpr double kMaxSpeedY = 480;
constexpr double kSpeedStep = 0.01;
constexpr int kSwatchWidth = 32;
constexpr int kSwatchHeight = 16;

cEditValDesc SpeedEdit(int id, double* field, double limit) {
  return cEditValDesc{id, field, -limit, limit, id + kStageSpinOffset, kSpeedStep};
}

// What a picture layer has and a colour layer hasn't.
constexpr int kPictureControls[] = {kIdBackPath, kIdBackBrowse, kIdBackSpeedX, kIdBackSpeedY, kIdBackAutoX, kIdBackAutoY};

}  // namespace

cBackDialog::cBackDialog(cDialogManager& manager, QWidget* parent, cStageBack& back)
    : cRecordDialog(manager, parent, back) {
  SetTitle(Ui("背景"));
  SetLogName("DLG_BACK");
  cStageBack& b = Work();
  m_form.rows = {
      {nullptr, cCheckDesc{kIdBackFromStart, &b.m_bFromStart, "最初から表示"}},
      {"画像", EditStrLine(kIdBackPath, &b.m_strPath, kPathLimit)},
      {nullptr, cButtonDesc{kIdBackBrowse, "参照"}, nullptr, nullptr, true},
      {nullptr, cCheckDesc{kIdBackUseColor, &b.m_bUseColor, "色で指定"}},
      {"色番号", cEditValDesc{kIdBackColor, &b.m_iColor, kFirstColour, kLastColour, kIdBackColor + kStageSpinOffset}},
      {nullptr, cPictureDesc{kIdBackSwatch, kSwatchWidth, kSwatchHeight}, nullptr, nullptr, true},
      {nullptr, cCheckDesc{kIdBackFront, &b.m_bFront, "キャラより手前に表示"}},
      {"横スクロールの速度", SpeedEdit(kIdBackSpeedX, &b.m_dSpeedX, kMaxSpeedX), nullptr, "☆1.00でプレイヤーキャラと等速"},
      {"縦スクロールの速度", SpeedEdit(kIdBackSpeedY, &b.m_dSpeedY, kMaxSpeedY)},
      {nullptr, cCheckDesc{kIdBackAutoX, &b.m_bAutoX, "横オートスクロール"}},
      {"速度", SpeedEdit(kIdBackAutoSpeedX, &b.m_dAutoSpeedX, kMaxSpeedX), nullptr, nullptr, true},
      {nullptr, cCheckDesc{kIdBackAutoY, &b.m_bAutoY, "縦オートスクロール"}},
      {"速度", SpeedEdit(kIdBackAutoSpeedY, &b.m_dAutoSpeedY, kMaxSpeedY), nullptr, nullptr, true},
  };
}

// A colour layer has only its colour; a picture layer has everything
// else, each auto speed while its auto-scroll is on.
void cBackDialog::UpdateEnables() {
  ApplyAll();
  const cStageBack& b = Work();
  const bool colour = b.m_bUseColor != 0;
  EnableControl(kIdBackColor, colour);
  for (int id : kPictureControls) EnableControl(id, !colour);
  EnableControl(kIdBackAutoSpeedX, !colour && b.m_bAutoX);
  EnableControl(kIdBackAutoSpeedY, !colour && b.m_bAutoY);
  if (auto* swatch = FindControlOf<cPicture>(kIdBackSwatch)) ShowProjectColour(*swatch, b.m_iColor);
}

void cBackDialog::OnDialogCommand(int id, int notice) {
  if (id != kIdBackBrowse || notice != kNoticeClicked) return;
  BrowseIntoEdit(*this, kIdBackPath, FilePromptOf("ビットマップの選択", "bmp\\back\\", "BitmapFile ( *.bmp )", "*.bmp", "bmp"));
}

}  // namespace velmora
