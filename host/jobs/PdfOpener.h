// SPDX-License-Identifier: Apache-2.0
// PDFs as the filters read them: whether they can, and copies that they can where a password is in
// their way. A process of its own does the reading.
#pragma once

#include <QString>
#include <atomic>
#include <memory>

#include "host/jobs/ScratchFile.h"
#include "platform/system/Result.h"

namespace orvek {

/// Whether a document can be printed, as far as that can be told beforehand.
enum class DocumentState {
  /// Nothing is known that speaks against it.
  Usable,
  /// It needs a password.
  Locked,
  /// A PDF that can't be repaired.
  Damaged,
  /// A PDF without pages.
  NoPages,
  /// It has no bytes.
  Empty,
  /// It is not there, is a folder, or may not be read.
  Unreadable,
};

/// What was found out. Plain data.
struct PdfFindings {
  DocumentState state = DocumentState::Usable;
  /// After repairs; 0: unknown.
  int pages = 0;
};

/// Looks at a PDF. What takes too long, or can't be looked at, is usable for all that is known.
/// Blocks, within 20 seconds; ends soon after `cancelled` was set.
PdfFindings lookAtPdf(const QString &pdf, const std::atomic<bool> &cancelled);

/// A copy without protection of a PDF that this password opens; null where it does not. Nobody else
/// may read the copy, which goes with the object. Blocks as lookAtPdf() does. Fails where the copy
/// can't be written, and where the document can't be opened for another reason.
Result<std::shared_ptr<ScratchFile>> openedPdf(const QString &pdf, const QString &password,
                                               const std::atomic<bool> &cancelled);

}  // namespace orvek
