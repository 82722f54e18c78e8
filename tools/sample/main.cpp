#include <cstdio>
#include <cstring>
#include <string>

#include "sample/SampleGame.h"
#include "sample/SampleProject.h"

namespace {
constexpr const char* kUsage = "usage: velmora-make-sample [--fresh] DIR\n";
}

int main(int argc, char** argv) {
  if (argc == 2 && std::strcmp(argv[1], "--help") == 0) {
    std::fputs(kUsage, stdout);
    return 0;
  }
  const bool fresh = argc == 3 && std::strcmp(argv[1], "--fresh") == 0;
  // An option the tool doesn't know must not become a project folder.
  const bool folderOnly = argc == 2 && argv[1][0] != '-';
  if (!folderOnly && !fresh) {
    std::fputs(kUsage, stderr);
    return 2;
  }
  std::string error;
  if (!velmora::sample::MakeSampleProject(argv[argc - 1], fresh, error) ||
      !velmora::sample::PlaceStandinGame(argv[argc - 1], error)) {
    std::fprintf(stderr, "velmora-make-sample: %s\n", error.c_str());
    return 1;
  }
  return 0;
}
