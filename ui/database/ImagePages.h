#pragma once
#include <memory>

#include "project/DatabaseWork.h"
#include "ui/framework/Dialog.h"

namespace velmora {

// "ソードタイプ", "エフェクト" and "ワールドチップ": entries cut from
// pictures, with nested lists of their own or a picture of the chip.
std::unique_ptr<cDialog> MakeSwordTypePage(cDialogManager& manager, cDatabaseWork& work);
std::unique_ptr<cDialog> MakeEffectPage(cDialogManager& manager, cDatabaseWork& work);
std::unique_ptr<cDialog> MakeWorldChipPage(cDialogManager& manager, cDatabaseWork& work);

// Ids of their own controls, for the window's tests.
enum eImagePageIds {
  kIdSwordPositions = 1140,  // the positions, with "挿入", "編集" and "削除"
  kIdSwordInsert,
  kIdSwordEdit,
  kIdSwordDelete,
  kIdEffectWidth,
  kIdEffectHeight,
  kIdEffectGiant,
  kIdEffectFrames,           // the steps, with "アニメの編集"
  kIdEffectEditFrames,
  kIdChipGraphic,
  kIdChipGraphicSpin,
  kIdChipPreview,
  kIdChipBlocked,
};

}  // namespace velmora
