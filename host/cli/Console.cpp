// SPDX-License-Identifier: Apache-2.0
// Writing to the standard streams.

#include "host/cli/Console.h"

#include <cerrno>
#include <cstdio>

#include "platform/system/OneLine.h"

namespace orvek {
namespace {

// A name from a command line, a file or a server may hold anything; a line is one line all the
// same, and nothing that a terminal would obey.
QByteArray asOneLine(const QString &text) {
  return QByteArray::fromStdString(oneLine(text.toStdString()));
}

void writeToStandardError(const QByteArray &line) {
  std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
}

}  // namespace

Status writeToStandardOutput(const QByteArray &bytes) {
  const std::size_t size = static_cast<std::size_t>(bytes.size());
  if (std::fwrite(bytes.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0) {
    return {};
  }
  return Failure{FailureKind::Io, QStringLiteral("standard output"), Phrase::ofSystem(errno)};
}

Status writeLines(const QStringList &lines) {
  QList<QStringList> rows;
  for (const QString &line : lines) rows << QStringList{line};
  return writeRows(rows);
}

Status writeRows(const QList<QStringList> &rows) {
  QByteArray text;
  for (const QStringList &row : rows) {
    QByteArrayList fields;
    for (const QString &field : row) fields << asOneLine(field);
    text += fields.join('\t') + '\n';
  }
  return writeToStandardOutput(text);
}

int report(const Failure &failure) {
  writeToStandardError("orvek-print: " + asOneLine(failure.line()) + '\n');
  return exitStatusOf(failure.kind);
}

void tell(const QString &sentence) {
  writeToStandardError(asOneLine(sentence) + '\n');
}

}  // namespace orvek
