// SPDX-License-Identifier: Apache-2.0
// Times whole programs, from start to end, as a print server runs them.
//   bench-imposition DRIVER DOCUMENT...

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <vector>

#include "bench/Measure.h"

namespace {

constexpr int rounds = 7;
constexpr double goal = 1.5;

double secondsOfProgram(std::vector<const char *> arguments) {
  arguments.push_back(nullptr);
  return bench::secondsOf([&] {
    const pid_t process = fork();
    if (process == 0) {
      dup2(open("/dev/null", O_WRONLY), STDOUT_FILENO);
      execvp(arguments[0], const_cast<char *const *>(arguments.data()));
      _exit(127);
    }
    int status = 0;
    waitpid(process, &status, 0);
    if (status == 0) return;
    std::fprintf(stderr, "bench-imposition: %s failed\n", arguments[0]);
    std::exit(1);
  });
}

}  // namespace

int main(int argc, char *argv[]) {
  bench::head();
  for (int i = 2; i < argc; ++i) {
    const auto impose = [&] {
      return secondsOfProgram({argv[1], "--sheets", "1", "me", "", "1", "", argv[i]});
    };
    const auto copy = [&] {
      return secondsOfProgram({"qpdf", "--empty", "--pages", argv[i], "--", "/dev/null"});
    };
    const bench::Pair pair = bench::compareMedians(rounds, impose, copy);
    bench::line("impose " + std::filesystem::path(argv[i]).stem().string(), "qpdf --empty --pages",
                pair, 1, "ms", goal);
  }
  return 0;
}
