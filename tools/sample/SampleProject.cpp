#include "sample/SampleProject.h"

#include <filesystem>

#include "core/EditConfig.h"
#include "core/ProjectFolder.h"
#include "core/ProjectPaths.h"

namespace velmora::sample {
namespace {

// Each step writes one part of the project, relative to it.
struct cStep {
  const char* what;
  bool (*write)();
};

bool WriteEditConfig() {
  EditConfig config;
  return config.SaveFile(PathOf(ePath::EditConfig)) != 0;
}

const cStep kSteps[] = {
    {"e_data\\EditConfig.dat", &WriteEditConfig},
};

}  // namespace

bool MakeSampleProject(const std::string& folder, std::string& error) {
  std::error_code ec;
  std::filesystem::create_directories(folder, ec);
  const std::filesystem::path previous = std::filesystem::current_path();
  std::filesystem::current_path(folder, ec);
  if (ec) {
    error = "cannot enter " + folder + ": " + ec.message();
    return false;
  }
  CreateProjectFolders();
  bool ok = true;
  for (const cStep& step : kSteps) {
    if (!step.write()) {
      error = std::string("cannot write ") + step.what;
      ok = false;
      break;
    }
  }
  std::filesystem::current_path(previous, ec);
  return ok;
}

}  // namespace velmora::sample
