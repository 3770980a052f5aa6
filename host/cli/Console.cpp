// SPDX-License-Identifier: Apache-2.0
// Writing to the standard streams.

#include "host/cli/Console.h"

#include <cerrno>
#include <cstdio>

namespace orvek {
namespace {

// A name from a command line or a file may hold line feeds; a report is one line all the same.
QByteArray asOneLine(QString text) {
  for (QChar &character : text) {
    if (character.category() == QChar::Other_Control) character = QLatin1Char(' ');
  }
  return text.toUtf8();
}

}  // namespace

Status writeToStandardOutput(const QByteArray &bytes) {
  const std::size_t size = static_cast<std::size_t>(bytes.size());
  if (std::fwrite(bytes.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0) {
    return {};
  }
  return Failure{FailureKind::Io, QStringLiteral("standard output"), Phrase::ofSystem(errno)};
}

int report(const Failure &failure) {
  const QByteArray line = "orvek-print: " + asOneLine(failure.line()) + '\n';
  std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
  return exitStatusOf(failure.kind);
}

void tell(const QString &sentence) {
  const QByteArray line = asOneLine(sentence) + '\n';
  std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
}

}  // namespace orvek
