#include <cstdio>
#include <string>

#include "sample/SampleProject.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: velmora-make-sample DIR\n", stderr);
    return 2;
  }
  std::string error;
  if (!velmora::sample::MakeSampleProject(argv[1], error)) {
    std::fprintf(stderr, "velmora-make-sample: %s\n", error.c_str());
    return 1;
  }
  return 0;
}
