#include <cstdio>
#include <string>
#include <vector>

#include "inspect/Inspector.h"

int main(int argc, char** argv) {
  std::vector<std::string> args(argv + 1, argv + argc);
  std::string out, err;
  int code = velmora::inspect::RunInspector(args, out, err);
  std::fputs(out.c_str(), stdout);
  std::fputs(err.c_str(), stderr);
  return code;
}
