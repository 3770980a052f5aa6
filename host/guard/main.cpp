// SPDX-License-Identifier: Apache-2.0
// orvek-filter-guard: runs a tool for a program and leaves nothing of it when it ends or the
// program does, whatever ends that; or keeps the program's temporary files, likewise.

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "host/guard/Folder.h"
#include "host/guard/ToolRun.h"
#include "host/jobs/GuardCall.h"

namespace {

using namespace orvek::guard;

constexpr int misused = 2;
constexpr int firstWordOfTool = 5;

bool isWord(const char *word, const char *expected) {
  return std::strcmp(word, expected) == 0;
}

long numberIn(const char *word) {
  constexpr int decimal = 10;
  return std::strtol(word, nullptr, decimal);
}

}  // namespace

int main(int count, char **words) {
  if (count > firstWordOfTool && isWord(words[1], runWord)) {
    return runTool({static_cast<int>(numberIn(words[2])), static_cast<rlim_t>(numberIn(words[3])),
                    static_cast<int>(numberIn(words[4])), words + firstWordOfTool});
  }
  if (count == 3 && isWord(words[1], keepWord)) {
    // No place that somebody may want to unmount.
    if (::chdir("/") == 0) keepFolder(words[2]);
    return 0;
  }
  std::fputs("orvek-filter-guard: is started by orvek-print, with what it is to guard\n", stderr);
  return misused;
}
