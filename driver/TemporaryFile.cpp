// SPDX-License-Identifier: Apache-2.0
// Temporary files in the folder that CUPS names for them.

#include "driver/TemporaryFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>

#include "driver/Cancel.h"

namespace orvek::driver {
namespace {

constexpr std::size_t bufferSize = 1 << 16;

std::string folder() {
  std::error_code none;
  return std::filesystem::temp_directory_path(none).string();
}

Failure failure(const std::string &what) {
  return {FailureKind::Io, QString::fromStdString(what), QString::fromLocal8Bit(strerror(errno))};
}

bool writeAll(int file, const char *bytes, std::size_t size) {
  while (size > 0) {
    const ssize_t written = ::write(file, bytes, size);
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    bytes += written;
    size -= static_cast<std::size_t>(written);
  }
  return true;
}

bool copyAll(int from, int to) {
  std::array<char, bufferSize> bytes{};
  for (;;) {
    const ssize_t size = ::read(from, bytes.data(), bytes.size());
    if (size < 0 && errno == EINTR) continue;
    if (size <= 0) return size == 0;
    if (!writeAll(to, bytes.data(), static_cast<std::size_t>(size))) return false;
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

Result<File> spooled(int descriptor) {
  auto file = namelessFile();
  if (!file) return file;
  const int target = ::fileno(file.value().get());
  if (!copyAll(descriptor, target)) return failure("the document");
  ::lseek(target, 0, SEEK_SET);
  return file;
}

Status copyOut(std::FILE *file, int descriptor) {
  if (!copyAll(::fileno(file), descriptor)) return failure("the sheets");
  return {};
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
