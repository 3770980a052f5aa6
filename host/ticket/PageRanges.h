// SPDX-License-Identifier: Apache-2.0
// Page ranges as people type them and as CUPS takes them. Pure functions over one grammar.
#pragma once

#include <QList>
#include <QString>
#include <vector>

#include "imposition/FilterLayout.h"
#include "platform/system/Result.h"

namespace orvek {

/// "1-3, 7" as CUPS wants it: ascending, without overlap or white space. "-5" and "8-" are open
/// ranges. Null for an empty text: all pages. A Usage failure says which part makes no sense.
Result<QString> normalizedPageRanges(const QString &text);

/// The pages, from 1 and ascending, that the ranges take of a document; all of them for ranges that
/// are null or make no sense.
QList<int> pagesInRanges(const QString &pageRanges, int pageCount);

/// The ranges one by one, ascending; none, which stands for all pages, where they are null or make
/// no sense.
std::vector<imposition::PageRange> pageRangesIn(const QString &pageRanges);

}  // namespace orvek
