#include "sample/SampleGame.h"

#include <filesystem>

namespace velmora::sample {

bool PlaceStandinGame(const std::string& folder, std::string& error) {
  namespace fs = std::filesystem;
  std::error_code ec;
  const fs::path self = fs::read_symlink("/proc/self/exe", ec);
  if (ec) {
    error = "cannot find the own executable: " + ec.message();
    return false;
  }
  const fs::path game = self.parent_path() / kStandinGameName;
  // copy_file carries the permissions over, so the copy stays executable.
  fs::copy_file(game, fs::path(folder) / kStandinGameName, fs::copy_options::overwrite_existing, ec);
  if (ec) {
    error = "cannot copy " + game.string() + ": " + ec.message();
    return false;
  }
  return true;
}

}  // namespace velmora::sample
