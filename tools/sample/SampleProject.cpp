#include "sample/SampleProject.h"

#include <filesystem>
#include <vector>

#include "core/EditConfig.h"
#include "core/PrjOption.h"
#include "core/ProjectFolder.h"
#include "core/ProjectPaths.h"
#include "objects/GValInfo.h"
#include "objects/Palette.h"
#include "platform/FileSystem.h"
#include "platform/TextCodec.h"
#include "project/SampleData.h"
#include "sample/SamplePalette.h"
#include "sample/SampleStages.h"
#include "sound/SampleSounds.h"
#include "graphics/SamplePictures.h"

namespace velmora::sample {
namespace {

std::vector<std::string> g_stagePaths;

bool WriteSounds() {
  return WriteSampleWave("wave\\free.wav") && WriteSampleMidi("bgm\\Free.mid") && WriteSampleOgg("bgm\\Free.ogg");
}

bool WriteCommonVars() {
  g_vecCommonVar.assign(kCommonVarCount, cStageVar());
  const char* names[] = {"", "スコア", "残機", "コイン枚数"};
  for (size_t i = 1; i < std::size(names); ++i) g_vecCommonVar[i].m_strName = ToCp932(names[i]);
  return SaveCommonVars();
}

bool WritePalette() {
  FillSampleCommonPalette();
  InstallPaletteLists(ePalette::Common, CommonPalette().Lists());
  return CommonPalette().SaveFile(PathOf(ePath::CommonPalette)) != 0;
}

bool WriteStages() {
  g_stagePaths.clear();
  return WriteSampleStages(g_stagePaths);
}

bool WriteEditConfig() {
  EditConfig config;
  config.m_strLastStage = "data\\stg4\\Stage1.stg4_950";
  return config.SaveFile(PathOf(ePath::EditConfig)) != 0;
}

// Each step writes one part of the project, relative to it, in this order:
// the stages need the palette, the world map needs the stages.
struct cStep {
  const char* what;
  bool (*write)();
};

const cStep kSteps[] = {
    {"pictures", &WriteSamplePictures},
    {"sounds", &WriteSounds},
    {"database", [] { return WriteSampleDatabase(eDataFolder::Data); }},
    {"data\\System.dat", [] { return WriteSampleSystem(eDataFolder::Data); }},
    {"data\\PrjOption.dat", [] { return ProjectOption().SaveFile(PathOf(ePath::PrjOption)) != 0; }},
    {"data\\GValInfo.dat", &WriteCommonVars},
    {"data\\CommonPalette.cplt4", &WritePalette},
    {"stages", &WriteStages},
    {"data\\WorldMap.dat", [] { return WriteSampleWorldMap(eDataFolder::Data, g_stagePaths); }},
    {"e_data\\EditConfig.dat", &WriteEditConfig},
};

// default\ has the layout of data\: the first start copies it over.
bool CopyDataToDefault(bool fresh) {
  if (IsDirectory(PathOf(ePath::Default))) DeleteFolder(PathOf(ePath::Default));
  if (!CopyTree("data", "default")) return false;
  return !fresh || DeleteFolder(PathOf(ePath::Data));
}

bool WriteAll(bool fresh, std::string& error) {
  CreateProjectFolders();
  for (const cStep& step : kSteps) {
    if (!step.write()) {
      error = std::string("cannot write ") + step.what;
      return false;
    }
  }
  if (!CopyDataToDefault(fresh)) {
    error = "cannot copy data\\ to default\\";
    return false;
  }
  return true;
}

}  // namespace

bool MakeSampleProject(const std::string& folder, bool fresh, std::string& error) {
  std::error_code ec;
  std::filesystem::create_directories(folder, ec);
  const std::filesystem::path previous = std::filesystem::current_path();
  std::filesystem::current_path(folder, ec);
  if (ec) {
    error = "cannot enter " + folder + ": " + ec.message();
    return false;
  }
  const bool ok = WriteAll(fresh, error);
  std::filesystem::current_path(previous, ec);
  return ok;
}

}  // namespace velmora::sample
