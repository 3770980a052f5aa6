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

std::vector<int> pagesInBookletOrder(int pages, int signature) {
  std::vector<int> all;
  if (signature % pagesPerBookletSheet != 0) return all;
  const int each = signature > 0 ? signature : pagesPerBookletSheet * bookletSheets(pages);
  for (int first = 0; first < pages; first += each) {
    for (const FoldedSheet &sheet : bookletOrder(each, false)) {
      for (const int place :
           {sheet.front.left, sheet.front.right, sheet.back.left, sheet.back.right}) {
        all.push_back(first + place <= pages ? first + place : 0);
      }
    }
  }
  return all;
}

}  // namespace orvek::imposition
