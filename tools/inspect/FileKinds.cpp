#include "inspect/FileKinds.h"

#include <strings.h>

#include "core/EditConfig.h"
#include "core/PrjOption.h"
#include "core/ProjectPaths.h"
#include "core/SheetSize.h"
#include "inspect/PaletteFiles.h"
#include "objects/GValInfo.h"
#include "objects/Palette.h"
#include "project/Database.h"
#include "project/SystemRecord.h"
#include "project/WorldMap.h"
#include "stage/Stage.h"

namespace velmora::inspect {
namespace {

std::string BaseName(const std::string& path) {
  size_t cut = path.find_last_of("/\\");
  return cut == std::string::npos ? path : path.substr(cut + 1);
}

bool Matches(const std::string& pattern, const std::string& name) {
  if (pattern.size() > 1 && pattern[0] == '*') {
    const std::string tail = pattern.substr(1);
    return name.size() >= tail.size() && ::strcasecmp(name.c_str() + name.size() - tail.size(), tail.c_str()) == 0;
  }
  return ::strcasecmp(pattern.c_str(), name.c_str()) == 0;
}

// Stage files carry their version in the extension ("a.stg4_950"): the
// kind is found by the part before the suffix.
std::string WithoutVersionSuffix(const std::string& name) {
  size_t underscore = name.find_last_of('_');
  size_t dot = name.find_last_of('.');
  if (underscore == std::string::npos || dot == std::string::npos || underscore < dot) return name;
  return name.substr(0, underscore);
}

// The system record checks its music rows against the project's music
// list, so that list is read first when the folder has one.
std::unique_ptr<cLoadedFile> LoadSystem(const std::string& storedPath) {
  Database().LoadList(eDbList::Bgm, PathOf(ePath::Bgm));
  return cRecordFile<cEdSystem>::Load(storedPath);
}

}  // namespace

const std::vector<cFileKind>& FileKinds() {
  // Each record issue adds the files it brings.
  static const std::vector<cFileKind> kinds = {
      {"EditConfig", "EditConfig.dat", &cRecordFile<EditConfig>::Load},
      {"SheetSize", "SheetSize.dat", &cRecordFile<SheetSize>::Load},
      {"PrjOption", "PrjOption.dat", &cRecordFile<PrjOption>::Load},
      {"CommonPalette", "*.cplt4", &cRecordFile<cPalette>::Load},
      {"GValInfo", "GValInfo.dat", &cRecordFile<cCommonVarFile>::Load},
      {"AnimeSet", "AnimeSet.dat", &cRecordFile<cDbList<cEdAnimeSet>>::Load},
      {"Anime", "Anime.dat", &cRecordFile<cDbList<cEdAnime>>::Load},
      {"CharaBmp", "Bmp_CharaExc.dat", &cRecordFile<cDbList<cEdCharaBmp>>::Load},
      {"SwordType", "SwordType.dat", &cRecordFile<cDbList<cEdSwordType>>::Load},
      {"Effect", "Effect.dat", &cRecordFile<cDbList<cEdEffect>>::Load},
      {"CharaEffect", "CharaEffect.dat", &cRecordFile<cDbList<cEdCharaEffect>>::Load},
      {"ScrEffect", "ScrEffect.dat", &cRecordFile<cDbList<cEdScrEffect>>::Load},
      {"Picture", "Picture.dat", &cRecordFile<cDbList<cEdPicture>>::Load},
      {"Sound", "Sound.dat", &cRecordFile<cDbList<cEdSound>>::Load},
      {"Bgm", "Bgm.dat", &cRecordFile<cDbList<cEdBgm>>::Load},
      {"WorldMap", "WorldMap.dat", &cRecordFile<cEdWorldMap>::Load},
      {"System", "System.dat", &LoadSystem},
      {"StagePalette", "*.plt4", &cRecordFile<cStagePaletteFile>::Load},
      {"Stage", "*.stg4", &cRecordFile<cStage>::Load},
  };
  return kinds;
}

const cFileKind* FindFileKind(const std::string& path) {
  const std::string name = BaseName(path);
  for (const cFileKind& kind : FileKinds()) {
    if (Matches(kind.pattern, name) || Matches(kind.pattern, WithoutVersionSuffix(name))) return &kind;
  }
  return nullptr;
}

}  // namespace velmora::inspect
