// A save killed at any moment leaves every file the editor writes as it was
// or as the save meant it, and the project still opens. The child process
// saves every kind of file; the parent kills it at random moments within
// the time a whole round of saves takes. VELMORA_KILL_POINTS sets the number
// of kills (a few by default; 200 for the full run).
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <functional>
#include <optional>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "core/EditConfig.h"
#include "core/PrjOption.h"
#include "core/ProjectPaths.h"
#include "core/SaveData.h"
#include "core/SheetSize.h"
#include "objects/GValInfo.h"
#include "objects/Palette.h"
#include "platform/FileSystem.h"
#include "platform/HostPath.h"
#include "project/Database.h"
#include "project/ProjectLoad.h"
#include "project/ProjectRefNames.h"
#include "project/ProjectRefSizes.h"
#include "project/SystemRecord.h"
#include "project/SystemSave.h"
#include "project/WorldMap.h"
#include "sample/SampleProject.h"
#include "stage/Stage.h"
#include "stage/StageEdit.h"
#include "stage/StageLoader.h"
#include "support/ScriptedPrompt.h"
#include "support/TempProject.h"

namespace velmora {
namespace {

using namespace std::chrono;
using Bytes = std::optional<std::vector<uint8_t>>;  // none: no file

constexpr const char* kStagePalette = "data\\plt4\\Killed.plt4";

// One file the editor writes, with the save the editor makes of it.
struct cSavedFile {
  std::string path;
  std::function<bool()> save;
  Bytes before;
  Bytes after;
};

Bytes Contents(const std::string& stored) {
  if (!FileExists(stored)) return std::nullopt;
  return testing::ReadBytes(HostPath(stored));
}

void PutBack(const std::string& stored, const Bytes& bytes) {
  if (bytes) testing::WriteBytes(HostPath(stored), *bytes);
  else RemoveFile(stored);
}

std::string FirstSampleStage() {
  for (const cDirEntry& entry : ListDirectory("data\\stg4")) {
    if (!entry.isDirectory) return "data\\stg4\\" + entry.name;
  }
  return std::string();
}

int KillPoints() {
  const char* given = std::getenv("VELMORA_KILL_POINTS");
  return given ? std::atoi(given) : 12;
}

class KilledSave : public ::testing::Test {
 protected:
  void SetUp() override {
    std::string error;
    ASSERT_TRUE(sample::MakeSampleProject(project.Path(), false, error)) << error;
    ASSERT_TRUE(LoadProject());
    stage = FirstSampleStage();
    ASSERT_EQ(LoadStage(stage, EditStage()), eStageLoad::Loaded);
    StageEdit().m_strPath = stage;
    StageEdit().m_bHasStage = 1;
    ListFiles();
    for (cSavedFile& file : files) file.before = Contents(file.path);
    ChangeEveryRecord();
    for (cSavedFile& file : files) {
      ASSERT_TRUE(file.save()) << file.path;
      file.after = Contents(file.path);
      ASSERT_NE(file.before, file.after) << file.path << " must change, or a kill could pass unseen";
    }
  }
  void TearDown() override {
    InstallRefSizes(nullptr);
    InstallRefNames(nullptr);
    Database() = cEdDatabase();
    WorldMap() = cEdWorldMap();
    g_bNoSave = 0;
  }

  void Add(const std::string& path, std::function<bool()> save) {
    cSavedFile file;
    file.path = path;
    file.save = std::move(save);
    files.push_back(std::move(file));
  }

  void ListFiles() {
    for (int i = 0; i < kDbListCount; ++i) {
      const eDbList list = static_cast<eDbList>(i);
      const std::string path = PathOf(DbListInfo(list).file);
      Add(path, [list, path] { return Database().List(list).SaveFile(path) != 0; });
    }
    Add(PathOf(ePath::CommonPalette), [] { return SaveCommonPalette(); });
    Add(kStagePalette, [this] {
      prompt.QueuePath(kStagePalette);
      return SaveStagePalette() != 0;
    });
    Add(PathOf(ePath::WorldMap), [] { return WorldMap().SaveFile(PathOf(ePath::WorldMap)) != 0; });
    Add(PathOf(ePath::System), [] { return SaveSystemSettings(SystemRecord()); });
    Add(PathOf(ePath::PrjOption), [] { return ProjectOption().SaveFile(PathOf(ePath::PrjOption)) != 0; });
    Add(PathOf(ePath::EditConfig), [] { return EditorConfig().SaveFile(PathOf(ePath::EditConfig)) != 0; });
    Add(PathOf(ePath::SheetSize), [this] { return sheetSize.SaveFile(PathOf(ePath::SheetSize)) != 0; });
    Add(PathOf(ePath::GValInfo), [] { return SaveCommonVars(); });
    Add(stage, [] {
      StageEdit().m_bStageChanged = 1;
      return SaveStage(1) != 0;
    });
  }

  // Each save of the child writes other bytes than the file holds, and the
  // palettes and the stage grow, so their saves take long enough to be hit
  // in the middle.
  void ChangeEveryRecord() {
    for (int i = 0; i < kDbListCount; ++i) {
      cDbListBase& list = Database().List(static_cast<eDbList>(i));
      list.Resize(list.Count() + 1);
    }
    cPalette& common = CommonPalette();
    for (int copy = 0; copy < 50; ++copy) common.m_vecCharaPlt.push_back(common.m_vecCharaPlt.back());
    cStage& edited = EditStage();
    for (int copy = 0; copy < 50; ++copy) edited.m_vecCharaPlt.push_back(edited.m_vecCharaPlt.back());
    edited.m_strName = "killed";
    WorldMap().m_strCaption = "killed";
    SystemRecord().m_strGameTitle = "killed";
    ProjectOption().m_strGamePath = "killed.exe";
    EditorConfig().m_strLastStage = stage;
    sheetSize.m_strFontFace = "killed";
    g_vecCommonVar.at(1).m_strName = "killed";
  }

  void RestoreBefore() {
    for (const cSavedFile& file : files) PutBack(file.path, file.before);
  }

  // Forks a child that saves every file and ends; gives its process id.
  pid_t StartSaving() {
    const pid_t child = ::fork();
    if (child == 0) {
      bool all = true;
      for (cSavedFile& file : files) all = file.save() && all;
      ::_exit(all ? 0 : 1);
    }
    return child;
  }

  // Whether the project folder opens as the editor opens it, in a child, so
  // this process keeps the records the saves are made from.
  static bool ProjectLoads(const std::string& stagePath) {
    const pid_t child = ::fork();
    if (child == 0) {
      cStage loaded;
      const bool ok = LoadProject() && LoadStage(stagePath, loaded) == eStageLoad::Loaded;
      ::_exit(ok ? 0 : 1);
    }
    int status = 0;
    return ::waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
  }

  testing::cTempProject project;
  testing::cScriptedPrompt prompt;
  SheetSize sheetSize;
  std::string stage;
  std::vector<cSavedFile> files;
};

TEST_F(KilledSave, EveryFileIsOldOrNewAndTheProjectLoadsWhereverTheSaveWasKilled) {
  RestoreBefore();
  const auto start = steady_clock::now();
  const pid_t timed = StartSaving();
  int status = 0;
  ASSERT_EQ(::waitpid(timed, &status, 0), timed);
  ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "a save that isn't killed succeeds";
  const auto round = duration_cast<microseconds>(steady_clock::now() - start);

  const unsigned seed = std::random_device()();
  std::mt19937 random(seed);
  std::uniform_int_distribution<long long> moment(0, round.count());
  const int points = KillPoints();
  for (int point = 0; point < points; ++point) {
    RestoreBefore();
    const long long at = moment(random);
    const pid_t child = StartSaving();
    std::this_thread::sleep_for(microseconds(at));
    ::kill(child, SIGKILL);
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    for (const cSavedFile& file : files) {
      const Bytes now = Contents(file.path);
      ASSERT_TRUE(now == file.before || now == file.after)
          << file.path << " is neither old nor new after a kill at " << at << " us of " << round.count()
          << " (seed " << seed << ")";
    }
    ASSERT_TRUE(ProjectLoads(stage)) << "kill at " << at << " us (seed " << seed << ")";
  }
  std::printf("%d kills within a round of %lld us\n", points, static_cast<long long>(round.count()));
}

}  // namespace
}  // namespace velmora
