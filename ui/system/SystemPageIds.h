#pragma once

namespace velmora {

// The control ids of the system window's pages and of its help dialog.
// A repeated row takes its base id plus its row; ids don't repeat across
// the pages, so a control is named by its id alone. Ids below 1010 belong
// to the framework (OK, Cancel, the placeholder, the scroll bars).

// A numeric edit's spin buttons: the edit's id plus this.
inline constexpr int kSystemSpinOffset = 5000;

// Page 1: title, general, font, replay, effects.
enum eGeneralPageIds {
  kIdGameTitle = 1010, kIdTitleImage, kIdAutoSaveStart, kIdPause, kIdPauseHideObjects, kIdSymbols, kId1UpOnClear,
  kId1UpScore, kIdTestFlowAlways, kIdCharaDraw, kIdFont, kIdFontPreview, kIdEvenPitch, kIdReplaySave,
  kIdReplayManual, kIdReplayFileName, kIdOldFileDialog, kIdDeathEffect, kIdInvincibleEffect, kIdEffectSpeed,
  kIdColorAnime,
};

// Page 2: the modes. Lives, "∞" and the ranking are rows by mode; the
// ranking's columns are at mode * 5 + column.
enum eModesPageIds {
  kIdLives = 1100, kIdInfinite = 1110, kIdRankingOn = 1120, kIdRankingColumn = 1130,
  kIdStoryHighScore = 1150, kIdStoryTotalScore, kIdStoryRestore, kIdStoryRetry, kIdStoryToMap, kIdShareLives,
  kIdMapOnDeath, kIdMapShowLives, kIdAutoSaveEachStage, kIdChallengeWorlds, kIdChallengeAllWorlds,
  kIdChallHighScore, kIdChallTotalScore, kIdChallRestore, kIdChallRetry, kIdFreeRestore, kIdTestRestore,
};

// Page 3: stock, sounds, music, bitmaps; rows by their part's index.
enum eSoundsPageIds {
  kIdStock = 1200, kIdStockReset = 1230, kIdSoundPath = 1260, kIdSoundBrowse = 1280, kIdSoundPlay = 1300,
  kIdBgm = 1320, kIdBgmPlay = 1330, kIdBgmLoop = 1340, kIdBmpDepth = 1350, kIdKeyR, kIdKeyG, kIdKeyB,
};

// Page 4: the status window's items by gauge, the menus by entry, the
// kind lists by row, and the help.
enum eStatusPageIds {
  kIdGaugeShow = 1400, kIdGaugeSymbol = 1410, kIdGaugeText = 1420, kIdGaugeDigits = 1430,
  kIdGaugeShowValue = 1440, kIdGaugeThreshold = 1450, kIdGaugeUnit = 1460,
  kIdTitleMenuOn = 1500, kIdTitleMenuText = 1510, kIdMapMenuOn = 1520, kIdMapMenuText = 1530,
  kIdOptionMenuOn = 1540, kIdOptionMenuText = 1550,
  kIdRankKind = 1560, kIdReplaySaveKind = 1570, kIdReplayOrderKind = 1580, kIdShowHelp = 1590, kIdEditHelp,
};

// Page 5: the terms by index.
enum eTermsPageIds { kIdTerm = 1600 };

// Page 6: the keys of "System.ini" by row, and the screen settings.
enum eIniPageIds { kIdOptionKey = 1700, kIdOptionDefault = 1720, kIdBppD3D = 1740, kIdBppDD, kIdEndAfterStage };

// Pages 7 to 10: the compatibility flags by their row in gate order.
enum eCompatPageIds { kIdCompatFlag = 1800 };

// Dialog 287, "オプションの説明".
enum eHelpDialogIds { kIdHelpText = 1903, kIdHelpDefault };

}  // namespace velmora
