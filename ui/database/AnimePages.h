#pragma once
#include <memory>

#include "project/DatabaseWork.h"
#include "ui/framework/Dialog.h"

namespace velmora {

// "基本アニメセット" and "アニメ": animations with their sample and a
// preview that runs at the frame rate while the page is on show.
std::unique_ptr<cDialog> MakeAnimeSetPage(cDialogManager& manager, cDatabaseWork& work);
std::unique_ptr<cDialog> MakeAnimePage(cDialogManager& manager, cDatabaseWork& work);

// Ids of their own controls, for the window's tests.
enum eAnimePageIds {
  kIdAnimeSample = 1140,  // the sample's kind; its number, cell and "一覧" follow
  kIdAnimeList = kIdAnimeSample + 5,
  kIdAnimePreview = 1150,
  kIdAnimePattern,        // "パターンの編集", or "編集" of a set's slot
  kIdAnimeFrames,         // the steps, or a set's four slots
  kIdSetInvincible,
  kIdSetBlock,
  kIdSetFly,
};

}  // namespace velmora
