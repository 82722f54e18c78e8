#pragma once

namespace velmora {

// The controls of the entry editors' pages. Ids are local to a page; a
// field that several editors show keeps its id in each (those of the block
// dialog are its own of old). A numeric edit's spin is the id after it.
enum eEntryControlId : int {
  // On every page.
  kIdEntryPrev = 1021,    // "←"
  kIdEntryNext = 1022,    // "→"
  kIdEntryNumber = 1023,  // "No.%d"
  // The boxes "継承→" of a page stand from 1024 on, as its group table
  // names them.
  kIdFirstInheritBox = 1024,

  // Fields that blocks, characters and items share.
  kIdEntryName = 1002,
  kIdAppearList = 1044,
  kIdAppearInsert = 1041,
  kIdAppearEdit = 1042,
  kIdAppearDelete = 1043,
  kIdAppearJudge = 1255,
  kIdAppearLatch = 1051,
  kIdGraphicKind = 1254,
  kIdGraphicNo = 1036,
  kIdGraphicPick = 1038,
  kIdGraphicPreview = 1039,
  kIdGraphicFrame = 1446,
  kIdTransparent = 1258,
  kIdMarkShow = 1260,
  kIdMarkNo = 11040,
  kIdMarkSpin = 1445,
  kIdInheritSrc = 1252,
  kIdInheritNo = 1253,
  kIdZ = 1300,
  kIdZNote = 1302,
  kIdGiant = 1303,
  kIdOffsetX = 1304,
  kIdOffsetY = 1306,

  // The block.
  kIdFront = 1181,
  kIdBlockType = 1259,
  kIdNoHitForce = 1262,
  kIdAction = 1263,
  kIdActionX = 1130,
  kIdGetItemSrc = 1270,
  kIdGetItemNo = 12640,
  kIdNoSummon = 1182,

  // The character.
  kIdControl = 2000,
  kIdPlayerNo = 2001,
  kIdForce = 2002,
  kIdCharaId = 2004,
  kIdFaceRight = 2006,
  kIdCloneCount = 2007,
  kIdOffsetXClone = 2009,
  kIdOffsetXFlip = 2011,
  kIdOffsetYClone = 2012,
  kIdOffsetYFlip = 2014,
  kIdGraphicShift = 2015,
  kIdAnimeSet = 2017,
  kIdAnimeSetPick = 2018,
  kIdStartEffect = 2019,
  kIdStartEffectMode = 2020,
  kIdStartEffectLoop = 2021,
  kIdDeathEffect = 2022,
  kIdDeathEffectMode = 2023,
  kIdInvincibleFx = 2024,
  kIdInvincibleFxNote = 2025,
  kIdInvincible = 2026,
  kIdBlock = 2027,
  kIdFly = 2028,
  kIdSightType = 2029,
  kIdSightRange = 2030,
  kIdFixDir = 2032,
  kIdAutoScrollSync = 2033,
  kIdHp = 2034,
  kIdSp = 2036,
  kIdDefense = 2038,
  kIdBodyPower = 2040,
  kIdBodyImpact = 2042,
  kIdBodyEffect = 2044,
  kIdBodyHitRange = 2045,
  kIdImpactResist = 2046,
  kIdStopEase = 2048,
  kIdScore = 2050,
  kIdHoldItem = 2052,
  kIdActRange = 2053,
  kIdActJudge = 2054,
  kIdGroup = 2055,
  kIdGroupNo = 2056,

  // The item.
  kIdGetSound = 2100,
  kIdGetSoundPlay = 2101,
  kIdGetType = 2102,
  kIdGetShow = 2103,

  // The flow editor, and the item's command list.
  kIdFlowList = 1082,
  kIdFlowInsert = 1066,
  kIdFlowDelete = 1067,
  kIdFlowCondList = 1086,
  kIdFlowCondInsert = 1083,
  kIdFlowCondEdit = 1084,
  kIdFlowCondDelete = 1085,
  kIdKeyList = 1094,
  kIdKeyInsert = 1091,
  kIdKeyEdit = 1092,
  kIdKeyDelete = 1093,
  kIdCmdList = 1095,
  kIdCmdInsert = 1068,
  kIdCmdEdit = 1070,
  kIdCmdDelete = 1069,
  kIdFlowId = 1096,
  kIdFlowMemo = 1468,
  kIdFlowTestOnly = 1416,
  kIdFlowTrigger = 1089,
  kIdFlowGroup = 1097,
  kIdFlowTargetRelated = 1418,
  kIdFlowTargetNo = 1098,
  kIdFlowCondJudge = 1087,
  kIdFlowCondLatch = 1088,
  kIdFlowKeyEase = 1081,
  kIdFlowKeyEaseSpin = 1090,
  kIdFlowKeyRepeat = 1433,
  kIdFlowTriggerNote = 1417,
};

}  // namespace velmora
