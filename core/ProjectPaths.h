#pragma once
#include <string>
#include <vector>

namespace velmora {

// The fixed paths of a project folder, relative to it, in stored form.
enum class ePath {
  Data,
  Default,
  Stage,
  StageOldVersions,
  Work,
  DataBackup,
  EditData,
  SheetSize,
  EditConfig,
  EditDataBackup,
  PrjOption,
  DefaultPrjOption,
  CommonPalette,
  DefaultCommonPalette,
  GValInfo,
  DefaultGValInfo,
  DefaultStage,
  DefaultDefaultStage,
  WorldMap,
  DefaultWorldMap,
  AnimeSet,
  DefaultAnimeSet,
  Anime,
  DefaultAnime,
  BmpCharaExc,
  DefaultBmpCharaExc,
  SwordType,
  DefaultSwordType,
  Effect,
  DefaultEffect,
  CharaEffect,
  DefaultCharaEffect,
  ScrEffect,
  DefaultScrEffect,
  Picture,
  DefaultPicture,
  Sound,
  DefaultSound,
  Bgm,
  DefaultBgm,
  System,
  DefaultSystem,
  StagePrefix,
  UserStory,
  UserChallenge,
  UserFree,
  UserReplays,
  UserStoryFile,
  UserChallengeFile,
  UserFreeFile,
  UserReplayFile,
  UserOption,
  UserData,
  UserKeyConfig,
  UserBoot,
  UserWindow,
  Count
};

const std::string& PathOf(ePath entry);

enum class eExt { CommonPalette, Stage, StagePalette, Replay, Ranking, Count };
const std::string& ExtOf(eExt entry);

// Folders made at every start, each by one create call whose failure is
// ignored: the editor's own first, then the project's.
const std::vector<std::string>& EditorFolders();
const std::vector<std::string>& ProjectFolders();

}  // namespace velmora
