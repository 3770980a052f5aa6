// SPDX-License-Identifier: Apache-2.0
// Temporary files in the folder that CUPS names for them.

#include "driver/TemporaryFile.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "driver/Cancel.h"

namespace orvek::driver {
namespace {

constexpr std::size_t bufferSize = 1 << 16;
constexpr int pollMilliseconds = 100;

// One that isn't there is no reason to write elsewhere: whoever named it learns of it.
std::string folder() {
  const char *named = std::getenv("TMPDIR");
  return named == nullptr || *named == '\0' ? P_tmpdir : named;
}

Failure failure(const std::string &what) {
  return {FailureKind::Io, QString::fromStdString(what), QString::fromLocal8Bit(strerror(errno))};
}

bool writeAll(int file, const char *bytes, std::size_t size) {
  while (size > 0) {
    const ssize_t written = ::write(file, bytes, size);
    if (written < 0 && errno == EINTR && !isCancelled()) continue;
    if (written <= 0) return false;
    bytes += written;
    size -= static_cast<std::size_t>(written);
  }
  return true;
}

void waitForMore(int from) {
  pollfd ready{from, POLLIN, 0};
  ::poll(&ready, 1, pollMilliseconds);
}

/// `source`, `target`: what failures call them.
Status copyAll(int from, int to, const std::string &source, const std::string &target) {
  std::array<char, bufferSize> bytes{};
  for (;;) {
    const ssize_t size = ::read(from, bytes.data(), bytes.size());
    if (size == 0) return {};
    if (size < 0 && errno == EAGAIN) waitForMore(from);
    if (size < 0 && (errno == EINTR || errno == EAGAIN)) continue;
    if (size < 0) return failure(source);
    if (!writeAll(to, bytes.data(), static_cast<std::size_t>(size))) return failure(target);
  }
}

std::string pattern() {
  return folder() + "/orvek-booklet-XXXXXX";
}

}  // namespace

Result<File> namelessFile() {
  std::string path = pattern();
  const int descriptor = ::mkostemp(path.data(), O_CLOEXEC);
  if (descriptor < 0) return failure(folder());
  ::unlink(path.c_str());
  File file(::fdopen(descriptor, "w+b"));
  if (!file) return failure(folder());
  return file;
}

Result<File> spooled(int descriptor, const std::string &name) {
  auto file = namelessFile();
  if (!file) return file;
  const int target = ::fileno(file.value().get());
  const Status copied = copyAll(descriptor, target, name, folder());
  if (!copied) return copied.failure();
  ::lseek(target, 0, SEEK_SET);
  return file;
}

Result<std::uintmax_t> copyUntilCancelled(int from, int to) {
  std::array<char, bufferSize> bytes{};
  std::uintmax_t copied = 0;
  while (!isCancelled()) {
    // A filter that doesn't listen may hold its end open for ever.
    pollfd ready{from, POLLIN, 0};
    if (::poll(&ready, 1, pollMilliseconds) <= 0) continue;
    const ssize_t size = ::read(from, bytes.data(), bytes.size());
    if (size < 0 && errno == EINTR) continue;
    if (size == 0) break;
    if (size < 0 || !writeAll(to, bytes.data(), static_cast<std::size_t>(size))) {
      return failure("what is printed");
    }
    copied += static_cast<std::uintmax_t>(size);
  }
  return copied;
}

Result<std::string> beginningOf(int file, off_t place, std::size_t most, const std::string &name) {
  std::string bytes(most, '\0');
  const ssize_t size = ::pread(file, bytes.data(), bytes.size(), place);
  if (size < 0) return failure(name);
  bytes.resize(static_cast<std::size_t>(size));
  return bytes;
}

Status copyOut(std::FILE *file, int descriptor) {
  constexpr const char *name = "the sheets";
  return copyAll(::fileno(file), descriptor, name, name);
}

Result<File> openedFile(const std::string &path) {
  File file(std::fopen(path.c_str(), "rbe"));
  if (!file) return failure(path);
  return file;
}

NamedFile::NamedFile(std::string path) : m_path(std::move(path)) {
  removeWhenCancelled(m_path.c_str());
}

NamedFile::~NamedFile() {
  removeWhenCancelled(nullptr);
  ::unlink(m_path.c_str());
}

Result<std::unique_ptr<NamedFile>> NamedFile::with(const std::string &contents) {
  std::string path = pattern();
  const int descriptor = ::mkostemp(path.data(), O_CLOEXEC);
  if (descriptor < 0) return failure(folder());
  std::unique_ptr<NamedFile> file(new NamedFile(path));
  const bool isWritten = writeAll(descriptor, contents.data(), contents.size());
  const Failure why = failure(path);
  if (::close(descriptor) != 0 || !isWritten) return why;
  return file;
}

}  // namespace orvek::driver
