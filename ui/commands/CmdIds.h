#pragma once

namespace velmora {

// The controls of the command dialogs. The whole family shares one set of
// ids, each named after the field it edits, so a field keeps its control
// id in every kind that shows it; those of 直線移動 are its own of old.
// A spin is always the id after its edit.
enum eCmdControlId : int {
  // Fields of every command.
  kIdCmdTime = 1113,
  kIdCmdTimeClone = 1115,
  kIdCmdParallel = 1117,
  kIdCmdAnime = 1263,
  kIdCmdNoSoundOffscreen = 1435,
  kIdCmdSound = 1436,
  kIdCmdSoundPlay = 1437,
  kIdCmdText = 1377,  // the code of コードの実行, the text of メッセージ, the path of ステージクリア

  // cEdMove.
  kIdMoveSpeed = 1118,
  kIdMoveSpeedClone = 1120,
  kIdMoveDist = 1122,
  kIdMoveSetType = 1126,
  kIdMoveAimType = 1127,
  kIdMoveDir = 1128,
  kIdMoveTargetType = 1129,
  kIdMoveAngle = 1130,
  kIdMoveDistUnit = 1131,
  kIdMoveAngleClone = 1133,
  kIdMoveTargetX = 1135,
  kIdMoveTargetXDot = 1137,
  kIdMoveMaxSpeed = 1139,
  kIdMoveTurnRate = 1141,
  kIdMoveInertia = 1143,
  kIdMoveFlipX = 1144,
  kIdMoveFlipY = 1145,
  kIdMoveUntilTarget = 1146,
  kIdMoveNoShake = 1147,
  kIdMoveNoMoveY = 1148,
  kIdMoveUseTargetY = 1149,
  kIdMoveAngleMirror = 1150,
  kIdMoveTargetUnit = 1151,
  kIdMoveAnimeKind = 1264,
  kIdMoveTargetY = 1388,
  kIdMoveTargetYDot = 1390,
  kIdMoveNoMoveX = 1396,
  kIdMoveUseTargetX = 1397,
  kIdMoveFlipOnTurn = 1398,
  kIdMoveKeepDir = 1399,
  kIdMoveRatio = 1440,
  kIdMoveRatioRule = 1441,
  kIdMoveDistClone = 11240,
  kIdMoveParam1 = 1500,
  kIdMoveParam2 = 1502,
  kIdMoveTargetNo = 1504,
  kIdMoveWarpOrigin = 1505,

  // cEdShot.
  kIdShotCount = 1600,
  kIdShotFormation = 1602,
  kIdShotFormLabel = 1603,  // + 0 to 2: the labels that follow the formation
  kIdShotFormParam = 1606,  // + 2 × (0 to 2)
  kIdShotAimTarget = 1612,
  kIdShotDir,
  kIdShotAimAtTarget,
  kIdShotTargetNo,
  kIdShotAngleShift = 1616,
  kIdShotAngleShiftClone = 1618,
  kIdShotAngleMirror = 1620,
  kIdShotSpread = 1621,
  kIdShotPosByAngle = 1623,
  kIdShotCloneCount = 1624,
  kIdShotShiftX = 1626,
  kIdShotShiftXClone = 1628,
  kIdShotShiftY = 1630,
  kIdShotShiftYClone = 1632,
  kIdShotFlipX = 1634,
  kIdShotFlipY,
  kIdShotGraphic = 1636,
  kIdShotZ = 1638,
  kIdShotTransparent = 1640,
  kIdShotSameForce,
  kIdShotForce = 1642,
  kIdShotGiant = 1644,
  kIdShotMoveType,
  kIdShotMoveLabel = 1646,  // + 0 to 2: the labels that follow the move type
  kIdShotMoveParam = 1650,  // + 2 × (0 to 2)
  kIdShotMoveTarget = 1656,
  kIdShotAutoScrollSync,
  kIdShotSpeed = 1658,
  kIdShotSpeedClone = 1660,
  kIdShotAccelOn = 1662,
  kIdShotAccel = 1664,
  kIdShotAccelClone = 1666,
  kIdShotRangeOn = 1668,
  kIdShotRange = 1670,
  kIdShotRangeClone = 1672,
  kIdShotNoVanishAtEnd = 1674,
  kIdShotLifeOn,
  kIdShotLife = 1676,
  kIdShotLifeClone = 1678,
  kIdShotPierceBlock = 1680,
  kIdShotPierceChara,
  kIdShotPierceBlockChara,
  kIdShotShotVanish,
  kIdShotVanishValue = 1684,
  kIdShotPower = 1686,
  kIdShotImpact = 1688,
  kIdShotEffect = 1690,
  kIdShotGetItemSrc,
  kIdShotGetItemNo,
  kIdShotSummonType,
  kIdShotFailOnHero,
  kIdShotFailOnEnemy,
  kIdShotSummonSrc,
  kIdShotSummonNo,
  kIdShotForceMode,
  kIdShotZeroScore,
  kIdShotFlipDir,
  kIdShotAttack,
  kIdShotAttackFlow,

  // m_vParam: parameter i has the edit, check or combo kIdParam + 2 × i.
  kIdParam = 1700,

  // Helpers beside the fields.
  kIdCommonVarList = 1045,  // the reference lists of variables
  kIdStageVarList = 1049,
  kIdStageVarName = 1051,
  kIdCommonVarName = 1378,
  kIdLeftVarName = 1800,    // "_" beside the variables of ステータスの操作 and アレンジ
  kIdRightVarName,
  kIdStageBrowse,           // the file selection of ステージクリア
  kIdCondList,              // the conditions of フローの操作 and their buttons
  kIdCondInsert,
  kIdCondEdit,
  kIdCondDelete,
  kIdCondEnabled,
  kIdCondJudge,
  kIdCmdNote,
  kIdCmdNote2,
  kIdCmdNote3,
};

// The edit, check or combo of parameter i.
constexpr int ParamId(int i) { return kIdParam + 2 * i; }
// The spin beside an edit.
constexpr int SpinOf(int editId) { return editId + 1; }

// The kind buttons of the selectors 205 and 216, in kind order from 1.
// The id between the two runs belongs to neither.
inline constexpr int kIdKindButton = 1267;
inline constexpr int kIdKindButtonGap = 1299;
constexpr int KindButtonId(int kind) {
  const int id = kIdKindButton + kind - 1;
  return id < kIdKindButtonGap ? id : id + 1;
}
constexpr int KindOfButton(int id) { return id < kIdKindButtonGap ? id - kIdKindButton + 1 : id - kIdKindButton; }

}  // namespace velmora
