#include "ui/database/SwordPosDialog.h"

#include "ui/controls/ComboRows.h"

namespace velmora {
namespace {

// Past the framework's own ids (the placeholder, the scroll bars).
enum eSwordPosIds {
  kIdOffsetX = 1010, kIdOffsetXSpin, kIdFlipX, kIdOffsetY, kIdOffsetYSpin, kIdFlipY, kIdDirection,
  kIdSrcX, kIdSrcXSpin, kIdSrcY, kIdSrcYSpin, kIdWidth, kIdWidthSpin, kIdHeight, kIdHeightSpin, kIdTime, kIdTimeSpin,
};

}  // namespace

cSwordPosDialog::cSwordPosDialog(cDialogManager& manager, QWidget* parent, cEdSwordPos& pos)
    : cRecordDialog(manager, parent, pos) {
  SetTitle(QString::fromUtf8("ソードの位置"));
  SetLogName("sword position");
  cEdSwordPos& work = Work();
  m_form.rows = {
      {"位置のズレX(dot)", cEditValDesc{kIdOffsetX, &work.m_iOffsetX, -320, 320, kIdOffsetXSpin, 1}},
      {nullptr, cCheckDesc{kIdFlipX, &work.m_bFlipX, "右向きなら反転"}, nullptr, nullptr, true},
      {"位置のズレY(dot)", cEditValDesc{kIdOffsetY, &work.m_iOffsetY, -240, 240, kIdOffsetYSpin, 1}},
      {nullptr, cCheckDesc{kIdFlipY, &work.m_bFlipY, "右向きなら反転"}, nullptr, nullptr, true},
      {"攻撃方向", ComboOf(kIdDirection, &work.m_iDirection, {SysTexts({"前", "後", "上", "下"}), 0, nullptr})},
      FormGroup("表示元座標（ビットマップのどこから表示するか）",
                {{"X", cEditValDesc{kIdSrcX, &work.m_iSrcX, 0, 639, kIdSrcXSpin, 1}},
                 {"Y", cEditValDesc{kIdSrcY, &work.m_iSrcY, 0, 479, kIdSrcYSpin, 1}}}),
      {"横幅", cEditValDesc{kIdWidth, &work.m_iWidth, 0, 640, kIdWidthSpin, 1}},
      {"縦幅", cEditValDesc{kIdHeight, &work.m_iHeight, 0, 480, kIdHeightSpin, 1}},
      {"表示時間(1/10s)", cEditValDesc{kIdTime, &work.m_iTime, 0, 999, kIdTimeSpin, 1}},
  };
}

}  // namespace velmora
