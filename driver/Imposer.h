// SPDX-License-Identifier: Apache-2.0
// Makes a booklet's sheets of a PDF document. No exception leaves it.
#pragma once

#include <cstdint>
#include <cstdio>
#include <optional>

#include "imposition/BookletOptions.h"
#include "imposition/Geometry.h"
#include "platform/system/Result.h"

namespace orvek::driver {

struct BookletRequest {
  imposition::BookletKeys keys;
  /// The sheet as the printer feeds it. Nothing: as the document's first page is displayed.
  std::optional<imposition::Size> paper;
  /// The document was turned round for two-sided sheets, and may begin with the blank page that
  /// evened it out. That page is none of the document's own.
  bool mayBeginWithFiller = false;
  /// The pages come last first for the sake of the tray, not because the job wants it so. The
  /// sheets will be turned round for the tray; the booklet is to be read in the document's order.
  bool isTurnedForTray = false;
  /// How many bytes the sheets may take, if 64 times as many as the document has are fewer. Pages
  /// share what they are made of: only a document that was made to fill disks needs more.
  std::uintmax_t mostBytes = std::uintmax_t{256} << 20;
};

/// Sheets that have been written.
struct ImposedSheets {
  int sides = 0;
  /// Pages that the document counts and does not have. They stay blank, so that the others stand
  /// where they belong.
  int missingPages = 0;
};

/// Reads `document`, which must be seekable, and writes to `sheets` a PDF with a page for each side
/// of each sheet, as they are printed one after the other: front, back, front ... Pages become form
/// XObjects: nothing is turned into pixels, fonts and colours stay. Annotations and form fields
/// that printing shows are drawn into their pages. Both files stay the caller's.
///
/// Failures, in one line: the document is encrypted with a password; it can't be repaired; it has
/// no pages; its page tree runs in circles; `sheets` can't be written, or would be too large.
Result<ImposedSheets> imposeDocument(std::FILE *document, std::FILE *sheets,
                                     const BookletRequest &request);

}  // namespace orvek::driver
