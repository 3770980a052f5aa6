// SPDX-License-Identifier: Apache-2.0
// One echo request as a whole process, against fping.

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>

#include <cstdlib>
#include <vector>

#include "bench/Measure.h"
#include "bench/device/Benches.h"

extern char **environ;

namespace bench {
namespace {

// Many short rounds, of which some fall into quiet moments also on a busy machine.
constexpr int works = 1;
constexpr int rounds = 150;

void run(std::vector<const char *> words) {
  words.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
  posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0);
  pid_t child = -1;
  int status = -1;
  if (posix_spawnp(&child, words[0], &actions, nullptr, const_cast<char **>(words.data()),
                   environ) != 0) {
    std::abort();
  }
  waitpid(child, &status, 0);
  posix_spawn_file_actions_destroy(&actions);
  if (status != 0) {
    std::fprintf(stderr, "%s does not reach the loopback\n", words[0]);
    std::exit(1);
  }
}

}  // namespace

void echo(const char *program) {
  const auto repeat = [](std::vector<const char *> words) {
    return [words] {
      for (int i = 0; i < works; ++i) run(words);
    };
  };
  line("echo, a whole process", "fping -c1",
       compare(rounds, repeat({program, "ping", "127.0.0.1"}),
               repeat({"fping", "-c1", "-q", "127.0.0.1"})),
       works, "ms", 4.0);
}

}  // namespace bench
