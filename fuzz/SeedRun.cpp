// SPDX-License-Identifier: Apache-2.0
// Gives every file of a folder to a fuzzer's function once. So what a fuzzer found, kept as a seed,
// is a test of every build, also of those without a fuzzer in them.

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size);
extern "C" __attribute__((weak)) int LLVMFuzzerInitialize(int *count, char ***words);

namespace {

using std::filesystem::path;

// As it is at the start: a fuzzer may lead it away.
std::FILE *const complaints = stderr;

std::vector<path> filesIn(const path &folder) {
  std::vector<path> files;
  std::error_code error;
  for (const auto &entry : std::filesystem::directory_iterator(folder, error)) {
    if (entry.is_regular_file(error)) files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

bool runSeed(const path &file) {
  // Said first: the function ends the program where something does not hold.
  std::fprintf(complaints, "%s\n", file.c_str());
  std::ifstream stream(file, std::ios::binary);
  const std::vector<char> bytes(std::istreambuf_iterator<char>(stream), {});
  if (!stream) return false;
  // A copy of its very size, so that a sanitizer sees one byte too far.
  const std::vector<unsigned char> seed(bytes.begin(), bytes.end());
  LLVMFuzzerTestOneInput(seed.data(), seed.size());
  return true;
}

}  // namespace

int main(int argc, char **argv) {
  if (argc != 2) {
    std::fprintf(complaints, "usage: %s FOLDER\n", argv[0]);
    return 2;
  }
  const std::vector<path> seeds = filesIn(argv[1]);
  if (seeds.empty()) {
    std::fprintf(complaints, "%s: no seeds there\n", argv[1]);
    return 1;
  }
  if (LLVMFuzzerInitialize != nullptr) LLVMFuzzerInitialize(&argc, &argv);
  const bool areRead = std::all_of(seeds.begin(), seeds.end(), runSeed);
  if (!areRead) std::fprintf(complaints, "could not be read\n");
  return areRead ? 0 : 1;
}
