// SPDX-License-Identifier: Apache-2.0
// Looks at documents in files, pipes and whatever else can be read.

#include "driver/JobDocument.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace orvek::driver {
namespace {

constexpr std::size_t bytesThatTell = 64;
constexpr const char *nameless = "the document";

bool isRegular(int file) {
  struct stat about = {};
  return ::fstat(file, &about) == 0 && S_ISREG(about.st_mode);
}

/// A pipe can't be rewound. tee() copies from it and takes nothing; it gives what has come so far.
std::string beginningOfPipe(int pipe) {
  pollfd ready{pipe, POLLIN, 0};
  ::poll(&ready, 1, -1);
  std::array<int, 2> copy{};
  if (::pipe2(copy.data(), O_CLOEXEC) != 0) return {};
  std::array<char, bytesThatTell> bytes{};
  ssize_t size = ::tee(pipe, copy[1], bytes.size(), 0);
  if (size > 0) size = ::read(copy[0], bytes.data(), bytes.size());
  ::close(copy[0]);
  ::close(copy[1]);
  return size > 0 ? std::string(bytes.data(), static_cast<std::size_t>(size)) : std::string();
}

bool isPostScript(std::string_view bytes) {
  constexpr char endOfTransmission = '\4';
  constexpr std::string_view jobLanguage = "\033%-12345X";
  if (bytes.starts_with(jobLanguage)) return true;
  if (bytes.starts_with(endOfTransmission)) bytes.remove_prefix(1);
  return bytes.starts_with("%!");
}

Result<JobDocument> toldBy(const Result<std::string> &beginning, File copy = nullptr) {
  if (!beginning) return beginning.failure();
  const std::string &bytes = beginning.value();
  const DocumentKind kind = isPostScript(bytes) ? DocumentKind::PostScript : DocumentKind::PDF;
  return JobDocument{kind, bytes.empty(), std::move(copy)};
}

Result<JobDocument> copied(int descriptor, const std::string &name) {
  auto copy = spooled(descriptor, name);
  if (!copy) return copy.failure();
  const auto beginning = beginningOf(::fileno(copy.value().get()), 0, bytesThatTell, name);
  return toldBy(beginning, copy.take());
}

Result<JobDocument> lookAtFile(const std::string &path) {
  const auto file = openedFile(path);
  if (!file) return file.failure();
  const int descriptor = ::fileno(file.value().get());
  // Whatever else has a name may give its bytes but once.
  if (!isRegular(descriptor)) return copied(descriptor, path);
  return toldBy(beginningOf(descriptor, 0, bytesThatTell, path));
}

Result<JobDocument> lookAtStandardInput() {
  if (isRegular(STDIN_FILENO)) {
    const off_t place = ::lseek(STDIN_FILENO, 0, SEEK_CUR);
    return toldBy(beginningOf(STDIN_FILENO, place, bytesThatTell, nameless));
  }
  const std::string bytes = beginningOfPipe(STDIN_FILENO);
  // There is no waiting for more of a pipe without taking what it has.
  if (bytes.size() < bytesThatTell) return copied(STDIN_FILENO, nameless);
  return toldBy(bytes);
}

}  // namespace

Result<JobDocument> lookAtDocument(const FilterCall &call) {
  return call.file.empty() ? lookAtStandardInput() : lookAtFile(call.file);
}

}  // namespace orvek::driver
