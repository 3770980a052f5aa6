// SPDX-License-Identifier: Apache-2.0
// Pictures hold few colours in large areas: rows that repeat, and pixels that do, are passed over.

#include "tests/chain/PaperLook.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstring>

#include "tests/chain/CodedPages.h"

namespace orvek::test {
namespace {

constexpr int darkness = 25;
constexpr int widestBorder = 2;
constexpr int quarter = 90;

/// Pixels from the first to the last.
struct Extent {
  int left = 1 << 20, top = 1 << 20, right = -1, bottom = -1;

  bool isEmpty() const { return right < left; }
  void add(int x1, int x2, int y) {
    left = std::min(left, x1);
    right = std::max(right, x2);
    top = std::min(top, y);
    bottom = std::max(bottom, y);
  }
  int middleX() const { return left + (right - left) / 2; }
  int middleY() const { return top + (bottom - top) / 2; }
};

struct Found {
  Extent all;
  Extent upper;
  Extent lower;
};

class Search {
 public:
  explicit Search(const Picture &picture) : m_picture(picture) {
    for (int y = 0; y < picture.height; ++y) {
      const bool repeats =
          y > 0 && std::memcmp(picture.row(y), picture.row(y - 1), picture.rowBytes()) == 0;
      if (!repeats) readRow(y);
      for (const Run &run : m_runs) add(run, y);
    }
  }

  const Found &page(int number) const { return m_found.at(static_cast<std::size_t>(number)); }

 private:
  struct Run {
    Spot spot;
    int first = 0;
    int last = 0;
  };

  void readRow(int y) {
    m_runs.clear();
    for (int first = 0; first < m_picture.width;) {
      int next = first + 1;
      const unsigned char *colour = m_picture.pixel(first, y);
      while (next < m_picture.width && std::memcmp(colour, m_picture.pixel(next, y), 3) == 0) {
        ++next;
      }
      const auto spot = spotOf(colour[0], colour[1], colour[2]);
      if (spot) m_runs.push_back({*spot, first, next - 1});
      first = next;
    }
  }

  void add(const Run &run, int y) {
    Found &found = m_found.at(static_cast<std::size_t>(run.spot.page));
    found.all.add(run.first, run.last, y);
    if (run.spot.part == PagePart::Upper) found.upper.add(run.first, run.last, y);
    if (run.spot.part == PagePart::Lower) found.lower.add(run.first, run.last, y);
  }

  const Picture &m_picture;
  std::vector<Run> m_runs;
  std::array<Found, mostCodedPages + 1> m_found;
};

int turnOf(const Found &found) {
  if (found.upper.isEmpty() || found.lower.isEmpty()) return -1;
  const int across = found.upper.middleX() - found.lower.middleX();
  const int down = found.upper.middleY() - found.lower.middleY();
  if (std::abs(across) > std::abs(down)) return across > 0 ? quarter : 3 * quarter;
  return down < 0 ? 0 : 2 * quarter;
}

// The thin line that a booklet may have around its pages hides their very edges.
Extent withBorder(Extent page, const Picture &picture) {
  const int x = page.middleX();
  const int y = page.middleY();
  const auto isBorder = [&](int across, int down) {
    return picture.isDarkAt(across, down, darkness);
  };
  for (int i = 0; i < widestBorder && isBorder(page.left - 1, y); ++i) --page.left;
  for (int i = 0; i < widestBorder && isBorder(page.right + 1, y); ++i) ++page.right;
  for (int i = 0; i < widestBorder && isBorder(x, page.top - 1); ++i) --page.top;
  for (int i = 0; i < widestBorder && isBorder(x, page.bottom + 1); ++i) ++page.bottom;
  return page;
}

SeenSide sideIn(const Picture &picture) {
  const Search search(picture);
  SeenSide side{{double(picture.width), double(picture.height)}, {}};
  for (int number = 1; number <= mostCodedPages; ++number) {
    const Found &found = search.page(number);
    if (found.all.isEmpty()) continue;
    const Extent page = withBorder(found.all, picture);
    side.pages.push_back({number,
                          {double(page.left), double(page.top), double(page.right - page.left + 1),
                           double(page.bottom - page.top + 1)},
                          turnOf(found)});
  }
  return side;
}

}  // namespace

std::vector<SeenSide> codedPagesIn(const QByteArray &pictures) {
  std::vector<SeenSide> sides;
  for (qsizetype at = 0; at < pictures.size();) {
    const auto picture = nextPicture(pictures, &at);
    if (!picture) break;
    sides.push_back(sideIn(*picture));
  }
  return sides;
}

std::vector<SeenSide> lookForCodedPages(const QString &printed) {
  return codedPagesIn(drawn(printed));
}

}  // namespace orvek::test
