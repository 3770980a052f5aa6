// SPDX-License-Identifier: Apache-2.0
// Copies the PPD where it has to.

#include "driver/StandardPPD.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string_view>

namespace orvek::driver {
namespace {

constexpr const char *ppdVariable = "PPD";

Result<std::string> contentsOf(std::FILE *file, const std::string &name) {
  std::string all;
  std::array<char, 1 << 16> bytes{};
  while (const std::size_t size = std::fread(bytes.data(), 1, bytes.size(), file)) {
    all.append(bytes.data(), size);
  }
  if (std::ferror(file) != 0) {
    return Failure{FailureKind::Io, QString::fromStdString(name),
                   QStringLiteral("this PPD can't be read")};
  }
  return all;
}

bool namesAFilter(std::string_view line) {
  return line.starts_with("*cupsFilter2:") || line.starts_with("*cupsFilter:");
}

}  // namespace

std::string withoutFilterLines(const std::string &ppd) {
  std::string rest;
  rest.reserve(ppd.size());
  for (std::size_t begin = 0; begin < ppd.size();) {
    const std::size_t end = std::min(ppd.find('\n', begin), ppd.size() - 1) + 1;
    const std::string_view line(ppd.data() + begin, end - begin);
    if (!namesAFilter(line)) rest += line;
    begin = end;
  }
  return rest;
}

StandardPPD::StandardPPD(std::string original, std::unique_ptr<NamedFile> copy)
    : m_original(std::move(original)), m_copy(std::move(copy)) {
  if (m_copy) ::setenv(ppdVariable, m_copy->path().c_str(), 1);
}

StandardPPD::~StandardPPD() {
  if (m_copy) ::setenv(ppdVariable, m_original.c_str(), 1);
}

Result<std::unique_ptr<StandardPPD>> StandardPPD::of(const std::string &ppdFile) {
  std::unique_ptr<NamedFile> copy;
  if (!ppdFile.empty()) {
    const auto file = openedFile(ppdFile);
    if (!file) return file.failure();
    const auto all = contentsOf(file.value().get(), ppdFile);
    if (!all) return all.failure();
    const std::string rest = withoutFilterLines(all.value());
    if (rest.size() != all.value().size()) {
      auto written = NamedFile::with(rest);
      if (!written) return written.failure();
      copy = written.take();
    }
  }
  return std::unique_ptr<StandardPPD>(new StandardPPD(ppdFile, std::move(copy)));
}

}  // namespace orvek::driver
