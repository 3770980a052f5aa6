// SPDX-License-Identifier: Apache-2.0
// Times whole programs, from start to end, as a print server runs them.
//   bench-imposition DRIVER DIALOG PPD DOCUMENT...

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
constexpr int printRounds = 3;  // each prints a thousand pages
constexpr double printGoal = 1.3;

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

void benchImposition(const char *driver, const char *document) {
  const auto impose = [&] {
    return secondsOfProgram({driver, "--sheets", "1", "me", "", "1", "", document});
  };
  const auto copy = [&] {
    return secondsOfProgram({"qpdf", "--empty", "--pages", document, "--", "/dev/null"});
  };
  const bench::Pair pair = bench::compareMedians(rounds, impose, copy);
  bench::line("impose " + std::filesystem::path(document).stem().string(), "qpdf --empty --pages",
              pair, 1, "ms", goal);
}

void benchPrinting(const char *dialog, const char *ppd, const char *document) {
  const auto print = [&](const char *booklet) {
    return secondsOfProgram(
        {dialog, "--headless", "--ppd", ppd, "-o", booklet, "--output", "/dev/null", document});
  };
  const bench::Pair pair = bench::compareMedians(
      printRounds, [&] { return print("OVKEnableBooklet=True"); },
      [&] { return print("OVKEnableBooklet=False"); });
  bench::line("print " + std::filesystem::path(document).stem().string() + " as a booklet",
              "no booklet", pair, 1, "ms", printGoal);
}

}  // namespace

int main(int argc, char *argv[]) {
  constexpr int firstDocument = 4;
  bench::head();
  for (int i = firstDocument; i < argc; ++i) benchImposition(argv[1], argv[i]);
  for (int i = firstDocument; i < argc; ++i) benchPrinting(argv[2], argv[3], argv[i]);
  return 0;
}
