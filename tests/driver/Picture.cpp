// SPDX-License-Identifier: Apache-2.0
// Runs Ghostscript and finds colours in what it draws.

#include "tests/driver/Picture.h"

#include <gtest/gtest.h>

#include <QByteArray>
#include <QDir>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <algorithm>
#include <map>

#include "imposition/HeldSheet.h"
#include "tests/driver/MarkedDocument.h"
#include "tests/support/CapturingFilter.h"

namespace orvek::test {
namespace {

using imposition::Frame;
using imposition::Size;

constexpr int patience = 60000;
constexpr double tolerance = 2;
constexpr int darkness = 40;

struct Picture {
  int width = 0;
  int height = 0;
  QByteArray pixels;

  int at(int x, int y, int part) const {
    return static_cast<unsigned char>(pixels[(qsizetype(y) * width + x) * 3 + part]);
  }
  int pageAt(int x, int y) const { return pageOf(at(x, y, 0), at(x, y, 1), at(x, y, 2)); }
  bool isDarkAt(int x, int y) const {
    return std::max({at(x, y, 0), at(x, y, 1), at(x, y, 2)}) < darkness;
  }
};

/// P6, lines of comment, width, height, 255, one white space, pixels.
Picture readPicture(const QByteArray &file) {
  QList<QByteArray> words;
  qsizetype at = 0;
  while (words.size() < 4) {
    qsizetype end = file.indexOf('\n', at);
    const QByteArray line = file.mid(at, end - at);
    at = end + 1;
    if (!line.startsWith('#')) words += line.simplified().split(' ');
  }
  return {words[1].toInt(), words[2].toInt(), file.mid(at)};
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
                            page.top + int(down * (page.bottom - page.top)));
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
      if (const int page = picture.pageAt(x, y); page != 0) found[page].add(x, y);
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

std::vector<SeenSide> look(const std::string &file) {
  const QTemporaryDir folder;
  QProcess drawing;
  drawing.start(QStringLiteral("gs"),
                {QStringLiteral("-q"), QStringLiteral("-dSAFER"), QStringLiteral("-dBATCH"),
                 QStringLiteral("-dNOPAUSE"), QStringLiteral("-sDEVICE=ppmraw"),
                 QStringLiteral("-r72"), QStringLiteral("-o"),
                 folder.filePath(QStringLiteral("side%05d.ppm")), QString::fromStdString(file)});
  EXPECT_TRUE(drawing.waitForFinished(patience));
  EXPECT_EQ(drawing.exitCode(), 0) << drawing.readAllStandardOutput().toStdString();
  std::vector<SeenSide> sides;
  for (const QString &name : QDir(folder.path()).entryList({QStringLiteral("*.ppm")})) {
    sides.push_back(lookAt(readPicture(contentsOf(folder.filePath(name)))));
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
