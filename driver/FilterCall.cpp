// SPDX-License-Identifier: Apache-2.0
// Reads the arguments, and the first bytes of the document.

#include "driver/FilterCall.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <array>
#include <cstddef>
#include <string_view>

namespace orvek::driver {
namespace {

constexpr std::size_t fewestArguments = 6;
constexpr std::size_t mostArguments = 7;
constexpr std::size_t bytesThatTell = 64;

std::string read(int file) {
  std::array<char, bytesThatTell> bytes{};
  const ssize_t size = ::pread(file, bytes.data(), bytes.size(), 0);
  return size > 0 ? std::string(bytes.data(), static_cast<std::size_t>(size)) : std::string();
}

std::string beginningOfFile(const std::string &path) {
  const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (file < 0) return {};
  std::string bytes = read(file);
  ::close(file);
  return bytes;
}

/// A pipe can't be rewound. tee() copies from it and takes nothing.
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

std::string beginningOfStandardInput() {
  if (::lseek(STDIN_FILENO, 0, SEEK_CUR) >= 0) return read(STDIN_FILENO);
  return beginningOfPipe(STDIN_FILENO);
}

bool isPostScript(std::string_view bytes) {
  constexpr char endOfTransmission = '\4';
  constexpr std::string_view jobLanguage = "\033%-12345X";
  if (bytes.starts_with(jobLanguage)) return true;
  if (bytes.starts_with(endOfTransmission)) bytes.remove_prefix(1);
  return bytes.starts_with("%!");
}

}  // namespace

std::vector<std::string> FilterCall::arguments() const {
  std::vector<std::string> all{job, user, title, copies, options};
  if (!file.empty()) all.push_back(file);
  return all;
}

Result<FilterCall> readFilterCall(std::span<char *const> arguments) {
  if (arguments.size() < fewestArguments || arguments.size() > mostArguments) {
    return Failure{
        FailureKind::Usage, QStringLiteral("arguments"),
        QStringLiteral("a CUPS filter is called with JOB USER TITLE COPIES OPTIONS [FILE]")};
  }
  return FilterCall{arguments[0],
                    arguments[1],
                    arguments[2],
                    arguments[3],
                    arguments[4],
                    arguments[5],
                    arguments.size() == mostArguments ? arguments[6] : ""};
}

DocumentKind documentKind(const FilterCall &call) {
  const std::string bytes =
      call.file.empty() ? beginningOfStandardInput() : beginningOfFile(call.file);
  return isPostScript(bytes) ? DocumentKind::PostScript : DocumentKind::PDF;
}

}  // namespace orvek::driver
