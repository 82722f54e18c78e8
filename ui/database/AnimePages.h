#pragma once
namespace velmora {

// Ids of the controls of the pages "基本アニメセット" and "アニメ":
// animations with their sample and a preview that runs at the frame rate
// while the page is on show.
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
