// SPDX-License-Identifier: Apache-2.0
// Starts filters and waits for them.

#include "driver/StandardFilters.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <ctime>

#include "driver/Cancel.h"
#include "driver/TemporaryFile.h"

namespace orvek::driver {
namespace {

constexpr int noProgram = 127;
constexpr int graceMilliseconds = 1500;
constexpr int pauseMilliseconds = 20;

struct RunningFilter {
  std::string name;
  pid_t process = 0;
};

Failure failure(const std::string &what, const std::string &why) {
  return {FailureKind::Io, QString::fromStdString(what), QString::fromStdString(why)};
}

void connect(int descriptor, int place) {
  if (descriptor == place) return;
  ::dup2(descriptor, place);
}

[[noreturn]] void become(const std::string &path, const FilterCall &call, int input, int output) {
  ::prctl(PR_SET_PDEATHSIG, SIGTERM);
  ::setpgid(0, 0);
  std::signal(SIGPIPE, SIG_DFL);
  connect(input, STDIN_FILENO);
  connect(output, STDOUT_FILENO);
  const std::vector<std::string> arguments = call.arguments();
  std::vector<char *> texts{const_cast<char *>(call.printer.c_str())};
  for (const std::string &argument : arguments) {
    texts.push_back(const_cast<char *>(argument.c_str()));
  }
  texts.push_back(nullptr);
  ::execv(path.c_str(), texts.data());
  ::_exit(noProgram);
}

Result<RunningFilter> start(const std::string &name, const FilterCall &call, int input,
                            int output) {
  const std::string path = standardFilterPath(name);
  if (path.empty()) {
    return failure(name, "this filter is not installed; install the package \"cups-filters\"");
  }
  const pid_t process = ::fork();
  if (process < 0) return failure(name, std::strerror(errno));
  if (process == 0) become(path, call, input, output);
  // With a group of its own a filter goes together with the programs that it starts and waits for.
  ::setpgid(process, process);
  addRunningFilter(process);
  if (isCancelled()) ::kill(-process, SIGTERM);
  return RunningFilter{name, process};
}

void pause() {
  const timespec time{0, pauseMilliseconds * 1000000L};
  ::nanosleep(&time, nullptr);
}

/// Waits as long as it takes; once the job is cancelled no longer than a grace.
int statusOf(pid_t process) {
  int status = 0;
  for (int waited = 0;;) {
    const pid_t ended = ::waitpid(process, &status, isCancelled() ? WNOHANG : 0);
    if (ended == process || (ended < 0 && errno != EINTR)) break;
    if (ended < 0) continue;
    // Again and again: a program that the filter was just starting may have missed it.
    ::kill(-process, waited >= graceMilliseconds ? SIGKILL : SIGTERM);
    waited += pauseMilliseconds;
    pause();
  }
  removeRunningFilter(process);
  return status;
}

Result<int> outcome(const RunningFilter &filter) {
  const int status = statusOf(filter.process);
  if (isCancelled()) return 1;
  if (WIFSIGNALED(status)) {
    return failure(filter.name, "crashed on signal " + std::to_string(WTERMSIG(status)));
  }
  const int exitStatus = WEXITSTATUS(status);
  if (exitStatus == noProgram) return failure(filter.name, "could not be started");
  return exitStatus;
}

/// A descriptor that is closed once the filter at its other side has its copy.
class Descriptor {
 public:
  explicit Descriptor(int descriptor) : m_descriptor(descriptor) {}
  Descriptor(const Descriptor &) = delete;
  Descriptor &operator=(const Descriptor &) = delete;
  ~Descriptor() { reset(-1); }

  int get() const { return m_descriptor; }
  void reset(int descriptor) {
    if (m_descriptor >= 0) ::close(m_descriptor);
    m_descriptor = descriptor;
  }

 private:
  int m_descriptor;
};

/// What filters write goes through here: most of them don't look whether there was room for it.
class Outlet {
 public:
  explicit Outlet(int output) : m_output(output) {
    std::array<int, 2> pipe{-1, -1};
    if (::pipe2(pipe.data(), O_CLOEXEC) != 0) return;
    m_reading.reset(pipe[0]);
    m_writing.reset(pipe[1]);
  }

  bool isOpen() const { return m_reading.get() >= 0; }
  /// For the last filter.
  int inlet() const { return m_writing.get(); }

  /// Copies until nobody writes any more, the job is cancelled or there is no room. Filters that
  /// still write end for want of a reader.
  Result<std::uintmax_t> drain() {
    m_writing.reset(-1);
    const auto copied = copyUntilCancelled(m_reading.get(), m_output);
    m_reading.reset(-1);
    return copied;
  }

 private:
  int m_output;
  Descriptor m_reading{-1};
  Descriptor m_writing{-1};
};

/// Starts all filters; those that could be started are in `running`, whatever it gives.
Status startAll(const std::vector<std::string> &names, FilterCall call, int input, int output,
                std::vector<RunningFilter> *running) {
  Descriptor upstream(-1);
  for (std::size_t i = 0; i < names.size(); ++i) {
    std::array<int, 2> pipe{-1, -1};
    const bool isLast = i + 1 == names.size();
    if (!isLast && ::pipe2(pipe.data(), O_CLOEXEC) != 0) {
      return failure(names[i], std::strerror(errno));
    }
    const Descriptor downstream(pipe[1]);
    auto filter =
        start(names[i], call, i == 0 ? input : upstream.get(), isLast ? output : downstream.get());
    upstream.reset(pipe[0]);
    if (!filter) return filter.failure();
    running->push_back(filter.take());
    call.file.clear();
  }
  return {};
}

}  // namespace

std::string standardFilterPath(const std::string &name) {
  const char *given = std::getenv("CUPS_SERVERBIN");
  for (const char *folder : {given, ORVEK_CUPS_SERVERBIN}) {
    if (folder == nullptr) continue;
    const std::string path = std::string(folder) + "/filter/" + name;
    if (::access(path.c_str(), X_OK) == 0) return path;
  }
  return {};
}

Result<FilterRun> runStandardFilters(const std::vector<std::string> &names, const FilterCall &call,
                                     int input, int output) {
  Outlet outlet(output);
  if (!outlet.isOpen()) return failure(names.back(), std::strerror(errno));
  std::vector<RunningFilter> running;
  Status good = startAll(names, call, input, outlet.inlet(), &running);
  int status = 0;
  const auto written = outlet.drain();
  if (good && !written) good = written.failure();
  // All are waited for, whatever the first ones gave.
  for (const RunningFilter &filter : running) {
    const Result<int> ended = outcome(filter);
    if (!ended && good) good = ended.failure();
    if (ended && status == 0) status = ended.value();
  }
  if (!good) return good.failure();
  return FilterRun{status, written.value()};
}

Result<int> printWith(const std::string &name, const FilterCall &call, int input, bool isEmpty) {
  const auto run = runStandardFilters({name}, call, input, STDOUT_FILENO);
  if (!run) return run.failure();
  const bool isLost = run.value().status == 0 && run.value().written == 0 && !isEmpty;
  if (isLost) {
    return failure(name, "it made nothing of the document; make room for its temporary files");
  }
  return run.value().status;
}

}  // namespace orvek::driver
