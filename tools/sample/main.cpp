#include <cstdio>
#include <cstring>
#include <string>

#include "sample/SampleGame.h"
#include "sample/SampleProject.h"

int main(int argc, char** argv) {
  const bool fresh = argc == 3 && std::strcmp(argv[1], "--fresh") == 0;
  if (argc != 2 && !fresh) {
    std::fputs("usage: velmora-make-sample [--fresh] DIR\n", stderr);
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
