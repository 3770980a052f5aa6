// SPDX-License-Identifier: Apache-2.0
// A document's pages, from trees that may be malformed. Exceptions of libqpdf pass through.
#pragma once

#include <vector>

#include "driver/Qpdf.h"
#include "platform/system/Result.h"

namespace orvek::driver {

/// All pages in their order; a document may have none. Fails for a tree that runs in circles or is
/// nested beyond all reason: libqpdf descends into it by recursion.
Result<std::vector<QPDFPageObjectHelper>> pagesOf(QPDF &document);

/// Puts these pages in place of all others, and leaves out of the catalog what speaks of those.
void replacePages(QPDF &document, const std::vector<QPDFObjectHandle> &pages);

}  // namespace orvek::driver
