// SPDX-License-Identifier: Apache-2.0
// Looks at documents without reading them.

#include "host/jobs/Document.h"

#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <cerrno>

namespace orvek {
namespace {

Status checkDocument(const QString &file) {
  if (isStandardInput(file)) return {};
  if (QFileInfo(file).isDir()) {
    return Failure{FailureKind::Io, file,
                   Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "is a folder"))};
  }
  // To open a pipe is to wait for its writer, who would then have lost its only reader.
  if (comesOnce(file)) {
    if (::access(QFile::encodeName(file).constData(), R_OK) == 0) return {};
    return Failure{FailureKind::Io, file, Phrase::ofSystem(errno)};
  }
  QFile document(file);
  if (!document.open(QIODevice::ReadOnly)) {
    return Failure{FailureKind::Io, file, Phrase::ofSystem(document.errorString())};
  }
  return document.size() > 0 ? Status() : Status(emptyDocument(file));
}

}  // namespace

QString standardInput() {
  return QStringLiteral("-");
}

bool isStandardInput(const QString &file) {
  return file == QLatin1String("-");
}

Phrase documentName(const QString &file) {
  if (!isStandardInput(file)) return file;
  return Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "standard input"));
}

bool comesOnce(const QString &file) {
  const QFileInfo info(file);
  return isStandardInput(file) || (info.exists() && !info.isFile() && !info.isDir());
}

Failure emptyDocument(const QString &file) {
  return {FailureKind::Io, documentName(file),
          Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "is empty, so there is nothing to print"))};
}

bool isEmptyDocument(const Failure &failure) {
  return failure.why == emptyDocument({}).why;
}

Status checkAllDocuments(const QStringList &files) {
  if (files.count(standardInput()) > 1) {
    return Failure{
        FailureKind::Usage, documentName(standardInput()),
        Phrase(QT_TRANSLATE_NOOP("orvek::Failure",
                                 "can be printed once only, and \"-\" is given more than once"))};
  }
  for (const QString &file : files) {
    if (Status document = checkDocument(file); !document) return document;
  }
  return {};
}

qint64 documentSize(const QString &file) {
  const QFileInfo info(file);
  return !isStandardInput(file) && info.isFile() ? info.size() : -1;
}

}  // namespace orvek
