// SPDX-License-Identifier: Apache-2.0
// A job's document before anybody has read it.
#pragma once

#include "driver/FilterCall.h"
#include "driver/TemporaryFile.h"

namespace orvek::driver {

/// What a document is by its first bytes.
enum class DocumentKind { PDF, PostScript };

struct JobDocument {
  DocumentKind kind = DocumentKind::PDF;
  /// It has not a single byte.
  bool isEmpty = false;
  /// The document, ready to be read, where looking at it took it from where it was. Null: it is
  /// still there, the call's file or standard input.
  File copy;
};

/// Looks at the beginning of the call's file or of standard input, waiting for it where it has yet
/// to come. Whatever is not PostScript counts as PDF. What can't be looked at without being taken
/// (a FIFO, a socket) or is slow in coming becomes a copy. Fails where the document can't be read
/// or the copy can't be written.
Result<JobDocument> lookAtDocument(const FilterCall &call);

}  // namespace orvek::driver
