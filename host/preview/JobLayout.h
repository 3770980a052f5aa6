// SPDX-License-Identifier: Apache-2.0
// A session's job as the rooms that lay out sheets take it.
#pragma once

#include <vector>

#include "host/preview/DocumentPages.h"
#include "imposition/JobSheets.h"

namespace orvek {

class PrintSession;

/// A job as a preview asks about it. A value.
struct LaidOutJob {
  /// Without a PPD, or a size for the paper in it: A4, or what the job calls its media, without
  /// margins.
  imposition::SheetJob sheets;
  /// How many sets the job makes, whoever said so: the dialog, its ticket or the queue.
  int copies = 1;
  /// What the document is printed with, as far as its own pages depend on it.
  PrintedWith with;
};

/// The job as it would be printed now.
LaidOutJob laidOutJobOf(PrintSession &session);

/// The sides that the job makes of these pages.
std::vector<imposition::PrintedSide> sidesOf(const DocumentPages &document,
                                             const imposition::SheetJob &job);

}  // namespace orvek
