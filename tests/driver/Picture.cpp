// SPDX-License-Identifier: Apache-2.0
// Runs Ghostscript and finds colours in what it draws.

#include "tests/driver/Picture.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QStandardPaths>
#include <algorithm>
#include <map>

#include "imposition/HeldSheet.h"
#include "tests/driver/MarkedDocument.h"

namespace orvek::test {
namespace {

using imposition::Frame;
using imposition::Size;

constexpr int patience = 120000;
constexpr double tolerance = 2;
constexpr int darkness = 40;

/// P6, lines of comment, width, height, 255, one white space, pixels.
std::optional<Picture> pictureAt(const QByteArray &pictures, qsizetype *at) {
  QList<QByteArray> words;
  while (words.size() < 4) {
    const qsizetype end = pictures.indexOf('\n', *at);
    if (end < 0) return std::nullopt;
    const QByteArray line = pictures.mid(*at, end - *at);
    *at = end + 1;
    if (!line.startsWith('#')) words += line.simplified().split(' ');
  }
  Picture picture{words[1].toInt(), words[2].toInt(), nullptr};
  const auto bytes = static_cast<qsizetype>(picture.rowBytes()) * picture.height;
  if (words[0] != "P6" || pictures.size() - *at < bytes) return std::nullopt;
  picture.pixels = reinterpret_cast<const unsigned char *>(pictures.constData()) + *at;
  *at += bytes;
  return picture;
}

int pageAt(const Picture &picture, int x, int y) {
  const unsigned char *parts = picture.pixel(x, y);
  return pageOf(parts[0], parts[1], parts[2]);
}

struct Extent {
  int left = 1 << 20, top = 1 << 20, right = -1, bottom = -1;

  void add(int x, int y) {
    left = std::min(left, x);
    top = std::min(top, y);
    right = std::max(right, x);
    bottom = std::max(bottom, y);
  }
  /// A page's outline lies around its colour, one pixel wide.
  Frame frame() const {
    return {double(left) - 1, double(top) - 1, double(right - left) + 3, double(bottom - top) + 3};
  }
};

/// The mark is a bar near the edge that is the page's top.
int turnOf(const Picture &picture, const Extent &page) {
  const auto isDark = [&](double across, double down) {
    return picture.isDarkAt(page.left + int(across * (page.right - page.left)),
                            page.top + int(down * (page.bottom - page.top)), darkness);
  };
  constexpr double nearEdge = 0.075;
  if (isDark(0.5, nearEdge)) return 0;
  if (isDark(1 - nearEdge, 0.5)) return 90;
  if (isDark(0.5, 1 - nearEdge)) return 180;
  if (isDark(nearEdge, 0.5)) return 270;
  return -1;
}

SeenSide lookAt(const Picture &picture) {
  std::map<int, Extent> found;
  for (int y = 0; y < picture.height; ++y) {
    for (int x = 0; x < picture.width; ++x) {
      if (const int page = pageAt(picture, x, y); page != 0) found[page].add(x, y);
    }
  }
  SeenSide side{{double(picture.width), double(picture.height)}, {}};
  for (const auto &[page, extent] : found) {
    // Where two colours meet a pixel may look like a third.
    if (extent.right - extent.left < 3 || extent.bottom - extent.top < 3) continue;
    side.pages.push_back({page, extent.frame(), turnOf(picture, extent)});
  }
  return side;
}

Frame visible(const imposition::PlacedPage &placed) {
  const double left = std::max(placed.frame.x, placed.clip.x);
  const double right = std::min(placed.frame.right(), placed.clip.right());
  return {left, placed.frame.y, right - left, placed.frame.height};
}

SeenSide expectedSide(const imposition::Side &side, Size paper, imposition::Face face) {
  const int turn = imposition::turnOnPaper(paper, face);
  SeenSide expected{paper, {}};
  for (const imposition::PlacedPage &placed : side.pages) {
    expected.pages.push_back(
        {placed.page, imposition::frameOnPaper(visible(placed), paper, turn), turn});
  }
  std::sort(expected.pages.begin(), expected.pages.end(),
            [](const SeenPage &a, const SeenPage &b) { return a.page < b.page; });
  return expected;
}

void expectNear(const Frame &seen, const Frame &expected) {
  EXPECT_NEAR(seen.x, expected.x, tolerance);
  EXPECT_NEAR(seen.y, expected.y, tolerance);
  EXPECT_NEAR(seen.right(), expected.right(), tolerance);
  EXPECT_NEAR(seen.bottom(), expected.bottom(), tolerance);
}

}  // namespace

std::string obstacleToLooking() {
  return QStandardPaths::findExecutable(QStringLiteral("gs")).isEmpty()
             ? "Ghostscript is not installed"
             : "";
}

bool Picture::isDarkAt(int x, int y, int limit) const {
  if (x < 0 || y < 0 || x >= width || y >= height) return false;
  const unsigned char *parts = pixel(x, y);
  return std::max({parts[0], parts[1], parts[2]}) < limit;
}

QByteArray drawn(const QString &file) {
  QProcess drawing;
  drawing.start(
      QStringLiteral("gs"),
      {QStringLiteral("-q"), QStringLiteral("-dSAFER"), QStringLiteral("-dBATCH"),
       QStringLiteral("-dNOPAUSE"), QStringLiteral("-sDEVICE=ppmraw"), QStringLiteral("-r72"),
       QStringLiteral("-sstdout=%stderr"), QStringLiteral("-o"), QStringLiteral("-"), file});
  EXPECT_TRUE(drawing.waitForFinished(patience));
  EXPECT_EQ(drawing.exitCode(), 0) << drawing.readAllStandardError().toStdString();
  return drawing.readAllStandardOutput();
}

std::optional<Picture> nextPicture(const QByteArray &pictures, qsizetype *at) {
  const qsizetype begin = *at;
  const auto picture = pictureAt(pictures, at);
  if (!picture) {
    ADD_FAILURE() << "Ghostscript drew no picture, but said: "
                  << pictures.mid(begin).left(300).toStdString();
  }
  return picture;
}

std::vector<SeenSide> look(const std::string &file) {
  const QByteArray pictures = drawn(QString::fromStdString(file));
  std::vector<SeenSide> sides;
  for (qsizetype at = 0; at < pictures.size();) {
    const auto picture = nextPicture(pictures, &at);
    if (!picture) break;
    sides.push_back(lookAt(*picture));
  }
  return sides;
}

std::vector<SeenSide> expectedSides(const imposition::ImposedJob &job, Size paper) {
  std::vector<SeenSide> sides;
  for (const imposition::Sheet &sheet : job.sheets) {
    sides.push_back(expectedSide(sheet.front, paper, imposition::Face::Front));
    sides.push_back(expectedSide(sheet.back, paper, imposition::Face::Back));
  }
  return sides;
}

void expectSeen(const std::vector<SeenSide> &seen, const std::vector<SeenSide> &expected) {
  ASSERT_EQ(seen.size(), expected.size()) << "sides";
  for (std::size_t side = 0; side < seen.size(); ++side) {
    SCOPED_TRACE("side " + std::to_string(side + 1));
    EXPECT_NEAR(seen[side].paper.width, expected[side].paper.width, 1);
    EXPECT_NEAR(seen[side].paper.height, expected[side].paper.height, 1);
    ASSERT_EQ(seen[side].pages.size(), expected[side].pages.size()) << "pages";
    for (std::size_t i = 0; i < seen[side].pages.size(); ++i) {
      SCOPED_TRACE("page " + std::to_string(expected[side].pages[i].page));
      EXPECT_EQ(seen[side].pages[i].page, expected[side].pages[i].page);
      EXPECT_EQ(seen[side].pages[i].turn, expected[side].pages[i].turn);
      expectNear(seen[side].pages[i].frame, expected[side].pages[i].frame);
    }
  }
}

}  // namespace orvek::test
