#pragma once

namespace velmora {

// The control ids of the stage settings pages, the background dialog and
// the two option dialogs. Ids don't repeat across the pages, so a control
// is named by its id alone; a repeated row takes its base id plus its row.
// Ids below 1010 belong to the framework.

// A numeric edit's spin buttons: the edit's id plus this.
inline constexpr int kStageSpinOffset = 5000;

// Page 1 "基本設定". The scroll limits go left, right, top, bottom.
enum eBasicPageIds {
  kIdStageName = 1010, kIdWidth, kIdHeight, kIdDirX, kIdDirY, kIdMemoryFigures, kIdUndoDrop,
  kIdScrollOn = 1020, kIdScrollLimit = 1024, kIdHiddenWidth = 1028,
  kIdScrollTypeX = 1040, kIdAutoSpeedX, kIdScrollTypeY, kIdAutoSpeedY, kIdTimeLimitOn, kIdTimeLimit, kIdWarnTime,
  kIdGravity, kIdPlHitTime, kIdPlSameHitTime, kIdEnHitTime, kIdEnSameHitTime, kIdStatusWindow, kIdBgm, kIdBgmPlay,
  kIdBgmLoop, kIdBgmKeep, kIdSkipClearWait, kIdStockLoad, kIdStockSave, kIdShowStageNo, kIdShowReady, kIdShowClear,
  kIdShowGameOver,
  kIdRankItem = 1080,
  kIdBackList = 1090, kIdBackInsert, kIdBackEdit, kIdBackDelete,
};

// Page 2 "高度な設定". Auto-vanish rows: kind * 4 + edge.
enum eAdvancedPageIds {
  kIdFrameRate = 1200, kIdHitLevel, kIdShotHitLevel, kIdUseZ, kIdNoDamageOffscreen,
  kIdVanishOn = 1220, kIdVanishMargin = 1250,
};

// Page 3 "高度な設定2". Box rows by their place in the page's table.
enum eHitBoxPageIds {
  kIdHitWidth = 1300, kIdHitHeight = 1320, kIdHitPlace = 1340, kIdHitShow = 1360, kIdHitColour = 1370,
};

// Dialog 136 "背景".
enum eBackDialogIds {
  kIdBackFromStart = 1400, kIdBackPath, kIdBackBrowse, kIdBackUseColor, kIdBackColor, kIdBackSwatch, kIdBackFront,
  kIdBackSpeedX, kIdBackSpeedY, kIdBackAutoX, kIdBackAutoSpeedX, kIdBackAutoY, kIdBackAutoSpeedY,
};

// Dialog 195 "ステージオプション".
enum eStageOptionIds { kIdUndoCount = 1500, kIdWheelDir };

}  // namespace velmora
