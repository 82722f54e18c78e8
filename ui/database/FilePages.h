#pragma once
#include <memory>

#include "project/DatabaseWork.h"
#include "ui/framework/Dialog.h"

namespace velmora {

// The pages of the database window whose entries are files with little
// more: "キャラの専用bmp", "ピクチャー", "効果音" and "BGM". Each edits its
// list in `work`.
std::unique_ptr<cDialog> MakeCharaBmpPage(cDialogManager& manager, cDatabaseWork& work);
std::unique_ptr<cDialog> MakePicturePage(cDialogManager& manager, cDatabaseWork& work);
std::unique_ptr<cDialog> MakeSoundPage(cDialogManager& manager, cDatabaseWork& work);
std::unique_ptr<cDialog> MakeBgmPage(cDialogManager& manager, cDatabaseWork& work);

// Ids of their own controls, for the window's tests.
enum eFilePageIds {
  kIdCharaHuge = 1140,  // "巨大キャラ"
  kIdCharaHugeSize,
  kIdSoundPlay,         // "再生"
  kIdSoundNote,
  kIdBgmVolume,         // "ボリューム(%)"
  kIdBgmVolumeShown,
};

}  // namespace velmora
