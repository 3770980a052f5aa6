// SPDX-License-Identifier: Apache-2.0
// Pictures hold few colours in large areas: rows that repeat, and pixels that do, are passed over.

#include "tests/chain/PaperLook.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <optional>

#include "tests/chain/CodedPages.h"

namespace orvek::test {
namespace {

constexpr int patience = 120000;
constexpr int darkness = 25;
constexpr int widestBorder = 2;
constexpr int quarter = 90;

struct Picture {
  int width = 0;
  int height = 0;
  const unsigned char *pixels = nullptr;

  std::size_t rowBytes() const { return 3 * static_cast<std::size_t>(width); }
  const unsigned char *row(int y) const { return pixels + rowBytes() * static_cast<unsigned>(y); }
  const unsigned char *pixel(int x, int y) const { return row(y) + std::ptrdiff_t{3} * x; }
  bool isDarkAt(int x, int y) const {
    if (x < 0 || y < 0 || x >= width || y >= height) return false;
    const unsigned char *parts = pixel(x, y);
    return std::max({parts[0], parts[1], parts[2]}) < darkness;
  }
};

/// P6, lines of comment, width, height, 255, one white space, pixels. Moves on behind them.
std::optional<Picture> nextPicture(const QByteArray &file, qsizetype *at) {
  QList<QByteArray> words;
  while (words.size() < 4) {
    const qsizetype end = file.indexOf('\n', *at);
    if (end < 0) return std::nullopt;
    const QByteArray line = file.mid(*at, end - *at);
    *at = end + 1;
    if (!line.startsWith('#')) words += line.simplified().split(' ');
  }
  Picture picture{words[1].toInt(), words[2].toInt(), nullptr};
  const auto bytes = static_cast<qsizetype>(picture.rowBytes()) * picture.height;
  if (words[0] != "P6" || file.size() - *at < bytes) return std::nullopt;
  picture.pixels = reinterpret_cast<const unsigned char *>(file.constData()) + *at;
  *at += bytes;
  return picture;
}

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
  for (int i = 0; i < widestBorder && picture.isDarkAt(page.left - 1, y); ++i) --page.left;
  for (int i = 0; i < widestBorder && picture.isDarkAt(page.right + 1, y); ++i) ++page.right;
  for (int i = 0; i < widestBorder && picture.isDarkAt(x, page.top - 1); ++i) --page.top;
  for (int i = 0; i < widestBorder && picture.isDarkAt(x, page.bottom + 1); ++i) ++page.bottom;
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
  qsizetype at = 0;
  while (at < pictures.size()) {
    const auto picture = nextPicture(pictures, &at);
    if (!picture) {
      ADD_FAILURE() << "Ghostscript drew no picture, but said: "
                    << pictures.mid(at).left(300).toStdString();
      break;
    }
    sides.push_back(sideIn(*picture));
  }
  return sides;
}

std::vector<SeenSide> lookForCodedPages(const QString &printed) {
  QProcess drawing;
  drawing.start(
      QStringLiteral("gs"),
      {QStringLiteral("-q"), QStringLiteral("-dSAFER"), QStringLiteral("-dBATCH"),
       QStringLiteral("-dNOPAUSE"), QStringLiteral("-sDEVICE=ppmraw"), QStringLiteral("-r72"),
       QStringLiteral("-sstdout=%stderr"), QStringLiteral("-o"), QStringLiteral("-"), printed});
  EXPECT_TRUE(drawing.waitForFinished(patience));
  EXPECT_EQ(drawing.exitCode(), 0) << drawing.readAllStandardError().toStdString();
  return codedPagesIn(drawing.readAllStandardOutput());
}

}  // namespace orvek::test
