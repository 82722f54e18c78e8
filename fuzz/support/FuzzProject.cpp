#include "support/FuzzProject.h"

#include <signal.h>
#include <unistd.h>

#include <cerrno>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <vector>

#include "core/AppControl.h"
#include "core/Prompt.h"
#include "core/SaveData.h"
#include "platform/HostPath.h"
#include "project/ProjectLoad.h"
#include "sample/SampleProject.h"

namespace velmora::fuzz {
namespace {

namespace fs = std::filesystem;

// Error boxes come by the dozen from damaged files; answering them at once
// keeps the fuzzer fast.
class cSilentPrompt : public cPrompt {
 public:
  eAnswer Ask(OwnerWindow, const std::string&, const std::string&, eButtons, eIcon) override { return eAnswer::Ok; }
  bool OpenFile(OwnerWindow, const cFilePrompt&, std::string&) override { return false; }
  bool SaveFile(OwnerWindow, const cFilePrompt&, std::string&) override { return false; }
  bool BrowseFolder(OwnerWindow, const std::string&, std::string&) override { return false; }
};

// The close the stops ask for is how the editor meets a file it can't
// trust, with saving barred; only a stop that ends the process at once
// would lose the author's work.
class cStopsAreFindings : public cAppControl {
 public:
  void PostCloseRequest() override {}
  void DestroyMainWindow() override {}
  void Beep() override {}
  [[noreturn]] void EndProcess(int) override { __builtin_trap(); }
};

fs::path g_folder;

void RemoveFolder() {
  std::error_code ignored;
  fs::current_path("/", ignored);
  fs::remove_all(g_folder, ignored);
}

constexpr const char kFolderPrefix[] = "velmora-fuzz-";

// A run that ends on a finding ends at once, without removing its folder:
// the next one removes the folders of processes that are gone.
void RemoveFoldersLeftBehind(const fs::path& base) {
  std::error_code ignored;
  for (const fs::directory_entry& entry : fs::directory_iterator(base, ignored)) {
    const std::string name = entry.path().filename().string();
    if (name.rfind(kFolderPrefix, 0) != 0) continue;
    const pid_t owner = static_cast<pid_t>(std::atol(name.c_str() + sizeof kFolderPrefix - 1));
    if (owner > 0 && ::kill(owner, 0) != 0 && errno == ESRCH) fs::remove_all(entry.path(), ignored);
  }
}

fs::path FreshFolder() {
  const fs::path base = fs::is_directory("/dev/shm") ? fs::path("/dev/shm") : fs::temp_directory_path();
  RemoveFoldersLeftBehind(base);
  return base / (kFolderPrefix + std::to_string(::getpid()));
}

}  // namespace

void EnterProject() {
  static bool entered = false;
  if (entered) return;
  entered = true;
  static cSilentPrompt prompt;
  SetPrompt(&prompt);
  SetAppVersion();
  g_folder = FreshFolder();
  fs::create_directories(g_folder);
  std::atexit(RemoveFolder);
  fs::current_path(g_folder);
  std::string error;
  if (!sample::MakeSampleProject(g_folder.string(), false, error) || !LoadProject()) {
    std::fprintf(stderr, "no sample project to fuzz in: %s\n", error.c_str());
    std::abort();
  }
  static cStopsAreFindings stops;
  SetAppControl(&stops);
}

std::string PlaceInput(const std::string& stored, const uint8_t* data, size_t size) {
  g_bNoSave = 0;
  std::FILE* file = std::fopen(HostPath(stored).c_str(), "wb");
  if (!file || std::fwrite(data, 1, size, file) != size || std::fclose(file) != 0) std::abort();
  return stored;
}

}  // namespace velmora::fuzz

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  velmora::fuzz::EnterProject();
  return 0;
}
