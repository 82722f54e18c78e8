#include "core/ProjectPaths.h"

#include <array>

namespace velmora {
namespace {

const std::array<std::string, static_cast<size_t>(ePath::Count)> kPaths = {
    "data\\",
    "default\\",
    "data\\stg4\\",
    "data\\stg4\\old_ver\\",
    "data\\work\\",
    "data_backup\\",
    "e_data\\",
    "e_data\\SheetSize.dat",
    "e_data\\EditConfig.dat",
    "e_data_backup\\",
    "data\\PrjOption.dat",
    "default\\PrjOption.dat",
    "data\\CommonPalette.cplt4",
    "default\\CommonPalette.cplt4",
    "data\\GValInfo.dat",
    "default\\GValInfo.dat",
    "data\\stg4\\Default.stg4_***",
    "default\\stg4\\Default.stg4_***",
    "data\\WorldMap.dat",
    "default\\WorldMap.dat",
    "data\\database\\AnimeSet.dat",
    "default\\database\\AnimeSet.dat",
    "data\\database\\Anime.dat",
    "default\\database\\Anime.dat",
    "data\\database\\Bmp_CharaExc.dat",
    "default\\database\\Bmp_CharaExc.dat",
    "data\\database\\SwordType.dat",
    "default\\database\\SwordType.dat",
    "data\\database\\Effect.dat",
    "default\\database\\Effect.dat",
    "data\\database\\CharaEffect.dat",
    "default\\database\\CharaEffect.dat",
    "data\\database\\ScrEffect.dat",
    "default\\database\\ScrEffect.dat",
    "data\\database\\Picture.dat",
    "default\\database\\Picture.dat",
    "data\\database\\Sound.dat",
    "default\\database\\Sound.dat",
    "data\\database\\Bgm.dat",
    "default\\database\\Bgm.dat",
    "data\\System.dat",
    "default\\System.dat",
    "data\\stg4\\c",
    "user_data\\story\\",
    "user_data\\challenge\\",
    "user_data\\free\\",
    "user_data\\rpl4\\",
    "user_data\\story\\Story",
    "user_data\\challenge\\Challenge.dat",
    "user_data\\Free.dat",
    "user_data\\Replay.dat",
    "user_data\\Option.dat",
    "user_data\\",
    "user_data\\KeyConfig.dat",
    "user_data\\Boot.dat",
    "user_data\\Window.dat",
};

const std::array<std::string, static_cast<size_t>(eExt::Count)> kExtensions = {"cplt4", "stg4", "plt4", "rpl4",
                                                                               "rkg"};

}  // namespace

const std::string& PathOf(ePath entry) { return kPaths[static_cast<size_t>(entry)]; }

const std::string& ExtOf(eExt entry) { return kExtensions[static_cast<size_t>(entry)]; }

const std::vector<std::string>& EditorFolders() {
  static const std::vector<std::string> folders = {"e_data", "e_bmp"};
  return folders;
}

const std::vector<std::string>& ProjectFolders() {
  static const std::vector<std::string> folders = {
      "user_data", "user_data\\story", "user_data\\challenge", "user_data\\free", "user_data\\rpl4",
      "data",      "data\\database",   "data\\stg4",           "data\\stg4\\old_ver", "data\\work",
      "data\\plt4", "bmp",             "bmp\\back",            "bmp\\chara_sp",   "bmp\\effect",
      "bmp\\picture", "bmp\\sword",    "bmp\\convert",         "bmp\\plt",        "bmp\\hbt",
      "wave",      "bgm"};
  return folders;
}

}  // namespace velmora
