// SPDX-License-Identifier: Apache-2.0
// What a request means where it leaves something unsaid.

#include "host/jobs/JobRequest.h"

#include <QFileInfo>

#include "host/jobs/Document.h"

namespace orvek {

Failure jobCancelled() {
  return cancelledFailure(Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "job")));
}

QStringList effectiveFiles(const JobRequest &request) {
  return request.files.isEmpty() ? QStringList{standardInput()} : request.files;
}

QString effectiveTitle(const JobRequest &request) {
  if (!request.title.isNull()) return request.title;
  const QString first = effectiveFiles(request).constFirst();
  if (isStandardInput(first)) return QStringLiteral("(stdin)");
  return QFileInfo(first).fileName();
}

QMap<QString, QString> effectiveOptions(const JobRequest &request) {
  QMap<QString, QString> options = request.outputFile.isNull() ? request.options : request.saved;
  if (!request.outputFile.isNull()) options.insert(request.options);
  if (request.priority > 0) {
    options.insert(QStringLiteral("job-priority"), QString::number(request.priority));
  }
  return options;
}

}  // namespace orvek
