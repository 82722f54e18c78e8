#pragma once

namespace velmora {

// The control ids of the project options' pages; ids below 1010 belong to
// the framework.

// Page "全般".
enum eGeneralOptionIds {
  kIdDefBlock = 1010, kIdDefChara, kIdDefItem, kIdAutoGame, kIdGamePath, kIdGameBrowse, kIdOldStage, kIdBackup,
  kIdBackupHours, kIdBackupSpin,
};

// Page "継承のデフォルト": the source combos at moment * 3 + kind, the
// flag boxes at moment * kInheritRowCount + row, the rows running through
// the groups of blocks, then characters, then items.
inline constexpr int kIdDefSource = 1100;
inline constexpr int kIdDefFlag = 1200;

}  // namespace velmora
