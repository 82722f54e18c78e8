#pragma once
namespace velmora {

// Ids of the controls of the pages "ソードタイプ", "エフェクト" and
// "ワールドチップ": entries cut from pictures, with nested lists of their
// own or a picture of the chip.
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
