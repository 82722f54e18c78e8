#pragma once
#include "objects/LabelTable.h"

namespace velmora {

// The enumerations of blocks, characters and items. Dialogs, summaries and
// checks read these; no other place repeats their labels.
extern const cLabelTable InheritSrcTable;
extern const cLabelTable GraphicKindTable;
extern const cLabelTable OnOffTable;
extern const cLabelTable MarkShowTable;
extern const cLabelTable BlockTypeTable;
extern const cLabelTable BlockActionTable;
extern const cLabelTable ItemRefTable;
extern const cLabelTable RunModeTable;
extern const cLabelTable ControlTable;
extern const cLabelTable FlyTable;
extern const cLabelTable InvincibleTable;
extern const cLabelTable InvincibleFxTable;
extern const cLabelTable GiantTable;  // stored 1 to 10
extern const cLabelTable SightTable;
extern const cLabelTable BodyHitTable;
extern const cLabelTable ActRangeTable;
extern const cLabelTable ActJudgeTable;
extern const cLabelTable GetTypeTable;

// Where an entry inherits from, and where a reference points.
enum eInheritSrc : int { kInheritNone = 0, kInheritCommon = 1, kInheritStage = 2 };

// Graphic kinds by stored value, the rows of GraphicKindTable: the sheet a
// block, character, item or animation preview takes its picture from.
enum eGraphicKind : int {
  kGraphicKindBlock,
  kGraphicKindChara,
  kGraphicKindItem,
  kGraphicKindShot,
  kGraphicKindOwnBmp,
  kGraphicKindCount
};

}  // namespace velmora
