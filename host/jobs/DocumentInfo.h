// SPDX-License-Identifier: Apache-2.0
// What a dialog shows of a document before it prints it. Reads the file, never more than it needs,
// and only for a bounded time.
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <atomic>

#include "host/jobs/PdfOpener.h"
#include "platform/system/Result.h"

namespace orvek {

/// What is known of one document. Plain data, for any thread; what could not be learned is unknown,
/// never a failure.
struct DocumentInfo {
  /// For people: the file's name, or "(stdin)".
  QString name;
  /// As it was given; "-" for standard input.
  QString path;
  /// 0: unknown.
  int pages = 0;
  /// PostScript, whose pages go by rules of their own on their way through the filters.
  bool isScript = false;
  DocumentState state = DocumentState::Usable;
};

/// PDF: what pdfinfo says of it. PostScript: the document's own comments (%%Pages). A picture: one
/// page. Anything else, standard input, a file that can't be read, is damaged or takes too long:
/// unknown. What can't be printed for certain says so in its state.
DocumentInfo documentInfo(const QString &path);
DocumentInfo documentInfo(const QString &path, const std::atomic<bool> &cancelled);

/// Has a document looked at while the program has other things to do: the next documentInfo() of
/// the same path waits for what comes of it. Asked again before that, it goes on looking. Nobody
/// has to ask; the end of the program does not wait for it longer than for a process to be ended.
/// Any thread.
void lookAhead(const QString &path);

/// The failure of a job with such a document; success where it is usable.
Status usable(const QString &path, DocumentState state);

/// Whether these documents, of which those that come once are not looked at, can be printed, and
/// whether the print system's filters would print any side of an only one, as the job's options
/// choose among them ("page-ranges", RFC 8011, counts sides: pages for most jobs). Blocks, within
/// bounds, and ends soon after `cancelled` was set.
Status checkContents(const QStringList &files, const QMap<QString, QString> &options,
                     const std::atomic<bool> &cancelled);

}  // namespace orvek
