#pragma once

namespace velmora {

// Ids of the controls of the pages whose entries are files with little
// more: "キャラの専用bmp", "ピクチャー", "効果音" and "BGM".
enum eFilePageIds {
  kIdCharaHuge = 1140,  // "巨大キャラ"
  kIdCharaHugeSize,
  kIdSoundPlay,         // "再生"
  kIdSoundNote,
  kIdBgmVolume,         // "ボリューム(%)"
  kIdBgmVolumeShown,
};

}  // namespace velmora
