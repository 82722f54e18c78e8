// Runs a fuzz target's entry over the files it is given, each folder's
// files in name order, so that every input a fuzzer once failed on stays a
// test in builds without libFuzzer.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);
// Only the targets that run inside a project have one.
extern "C" __attribute__((weak)) int LLVMFuzzerInitialize(int* argc, char*** argv);

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> Inputs(const fs::path& given) {
  if (!fs::is_directory(given)) return {given};
  std::vector<fs::path> files;
  for (const fs::directory_entry& entry : fs::directory_iterator(given)) {
    if (entry.is_regular_file()) files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

}  // namespace

int main(int argc, char** argv) {
  // Set-up may change the current folder: the inputs are found first.
  std::vector<fs::path> inputs;
  for (int i = 1; i < argc; ++i) {
    for (const fs::path& input : Inputs(argv[i])) inputs.push_back(fs::absolute(input));
  }
  if (LLVMFuzzerInitialize) LLVMFuzzerInitialize(&argc, &argv);
  for (const fs::path& input : inputs) {
    std::ifstream file(input, std::ios::binary);
    if (!file) {
      std::fprintf(stderr, "can't read %s\n", input.c_str());
      return 1;
    }
    std::vector<uint8_t> bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    std::printf("%s\n", input.c_str());
    std::fflush(stdout);
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
  }
  std::printf("%zu inputs ran through\n", inputs.size());
  return 0;
}
