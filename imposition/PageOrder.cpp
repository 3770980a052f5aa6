// SPDX-License-Identifier: Apache-2.0
// A booklet takes pages from both ends of the document, a sheet at a time.

#include "imposition/PageOrder.h"

#include <cstddef>

namespace orvek::imposition {
namespace {

Spread spread(int left, int right, bool rightToLeft) {
  return rightToLeft ? Spread{right, left} : Spread{left, right};
}

}  // namespace

int bookletSheets(int pages) {
  return pages <= 0 ? 0 : (pages - 1) / pagesPerBookletSheet + 1;
}

std::vector<FoldedSheet> bookletOrder(int pages, bool rightToLeft) {
  const int sheets = bookletSheets(pages);
  const int places = sheets * pagesPerBookletSheet;
  const auto at = [pages](int place) { return place <= pages ? place : 0; };
  std::vector<FoldedSheet> order;
  order.reserve(static_cast<std::size_t>(sheets));
  for (int sheet = 0; sheet < sheets; ++sheet) {
    const int first = 2 * sheet + 1;
    const int last = places - 2 * sheet;
    order.push_back({spread(at(last), at(first), rightToLeft),
                     spread(at(first + 1), at(last - 1), rightToLeft)});
  }
  return order;
}

}  // namespace orvek::imposition
