#pragma once
#include <array>
#include <span>

#include "objects/LabelTable.h"

namespace velmora {

// The enumerations of moves and shots.
extern const cLabelTable MoveAimTable;
extern const cLabelTable WarpAimTable;
extern const cLabelTable DirTable;
extern const cLabelTable TargetTypeTable;
extern const cLabelTable BlDotTable;
extern const cLabelTable HblDotTable;
extern const cLabelTable Target4Table;
extern const cLabelTable RotateTable;
extern const cLabelTable MoveAnimeTable;
extern const cLabelTable TimeSpeedDistTable;
extern const cLabelTable TimeSpeedTable;
extern const cLabelTable FormationTable;
extern const cLabelTable AimObjectTable;
extern const cLabelTable ShotMoveTable;
extern const cLabelTable SummonBlockTable;
extern const cLabelTable SummonPaletteTable;  // a common palette entry offers only its first row
extern const cLabelTable SummonForceTable;

// The three parameters whose meaning follows the formation or the move
// type of a shot, by row of FormationTable and ShotMoveTable.
using cParamTriple = std::array<cParamDef, 3>;
extern const std::span<const cParamTriple> FormationParamTable;
extern const std::span<const cParamTriple> ShotMoveParamTable;

}  // namespace velmora
