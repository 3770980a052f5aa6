// SPDX-License-Identifier: Apache-2.0
// orvek-print: has the helper for print servers started, then loads the program itself. Loading the
// toolkit takes as long as all that a short run does; the helper gets ready in that time.

#include <dlfcn.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "host/cli/Program.h"
#include "platform/system/SocketProgram.h"
#include "platform/system/StandardDescriptors.h"

namespace {

using namespace orvek;

constexpr const char *programPlace = "../" ORVEK_PROGRAM_MODULE;

/// What asks no print server, or not soon. Words that only look like these are read rightly later,
/// when the helper is started all the same.
bool asksNoServer(std::string_view word) {
  constexpr std::array options{"--ppd", "--help", "--version", "--list-presets", "--delete-preset"};
  return std::any_of(options.begin(), options.end(), [word](std::string_view option) {
    return word == option || (word.starts_with(option) && word[option.size()] == '=');
  });
}

bool isThere(const std::string &path) {
  return ::access(path.c_str(), F_OK) == 0;
}

/// The file where this program's libraries are looked for; the bare name where it is in none of
/// those places. Looked up here, as a sanitizer that stands between would search its own places.
std::string amongLibraries(const std::string &name) {
  void *self = ::dlopen(nullptr, RTLD_LAZY);
  Dl_serinfo size{};
  if (self == nullptr || ::dlinfo(self, RTLD_DI_SERINFOSIZE, &size) != 0) return name;
  std::vector<char> bytes(size.dls_size);
  auto *places = reinterpret_cast<Dl_serinfo *>(bytes.data());
  *places = size;
  if (::dlinfo(self, RTLD_DI_SERINFO, places) != 0) return name;
  for (const Dl_serpath &place : std::span(places->dls_serpath, places->dls_cnt)) {
    const std::string path = std::string(place.dls_name) + '/' + name;
    if (isThere(path)) return path;
  }
  return name;
}

/// libcups and what it needs come first: of all that is loaded together every library is searched
/// for each name of every other, and those of the toolkit know none of theirs. Where it is not
/// found the program says so itself.
void loadCups() {
  (void)::dlopen("libcups.so.2", RTLD_NOW);
}

/// Beside this program, wherever both were moved to; a copy of this one alone, out of the tree it
/// was built in, finds it there.
void *loadProgram() {
  const std::string path = besideThisProgram(programPlace);
  return ::dlopen((isThere(path) ? path : amongLibraries("orvek-print.so")).c_str(),
                  RTLD_NOW | RTLD_GLOBAL);
}

int complain(const std::string &what) {
  std::fprintf(stderr, "orvek-print: %s; install the program again\n", what.c_str());
  return 1;
}

}  // namespace

int main(int argc, char **argv) {
  openStandardDescriptors();
  SocketProgram helper;
  // Whoever asks will hear why there is none.
  if (std::none_of(argv, argv + argc, asksNoServer)) {
    startWithSocket(helperProgram("orvek-print-server"), &helper);
  }
  loadCups();
  void *module = loadProgram();
  if (module == nullptr) return complain(::dlerror());
  void *found = ::dlsym(module, "orvekPrint");
  if (found == nullptr) return complain(::dlerror());
  return reinterpret_cast<decltype(&orvekPrint)>(found)(argc, argv, helper);
}
