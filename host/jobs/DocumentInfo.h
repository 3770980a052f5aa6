// SPDX-License-Identifier: Apache-2.0
// What a dialog shows of a document before it prints it. Reads the file, never more than it needs,
// and only for a bounded time.
#pragma once

#include <QString>

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
};

/// PDF: what pdfinfo says of it. PostScript: the document's own comments (%%Pages). A picture: one
/// page. Anything else, standard input, a file that can't be read, is damaged or takes too long:
/// unknown.
DocumentInfo documentInfo(const QString &path);

}  // namespace orvek
