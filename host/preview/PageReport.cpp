// SPDX-License-Identifier: Apache-2.0
// What pdfinfo says about pages: a line for the size as displayed, one for the turn, and one for
// each box; first the sizes and turns of all pages, then their boxes.

#include <algorithm>
#include <cmath>

#include "host/preview/DocumentPages.h"

namespace orvek {
namespace {

constexpr int mostPages = 1'000'000;
constexpr int quarter = 90;
constexpr double largestLength = 1e9;
constexpr double largestTurn = 1e6;

/// A box in the page's own coordinates, y upwards.
struct Box {
  double left = 0;
  double bottom = 0;
  double right = 0;
  double top = 0;

  double width() const { return right - left; }
  double height() const { return top - bottom; }
  /// What is not a page's size, by far, counts as none: its frames would be no numbers any more.
  bool isEmpty() const { return !(isLength(width()) && isLength(height())); }

  static bool isLength(double length) { return length > 0 && length <= largestLength; }
};

struct Entry {
  Box shown;
  Box trim;
  int turn = 0;
};

QList<double> numbersIn(const QByteArray &text) {
  QList<double> numbers;
  for (const QByteArray &word : text.simplified().split(' ')) {
    bool isNumber = false;
    const double number = word.toDouble(&isNumber);
    if (isNumber && std::isfinite(number)) numbers << number;
  }
  return numbers;
}

Box boxIn(const QByteArray &text) {
  const QList<double> edges = numbersIn(text);
  if (edges.size() != 4) return {};
  return {std::min(edges[0], edges[2]), std::min(edges[1], edges[3]), std::max(edges[0], edges[2]),
          std::max(edges[1], edges[3])};
}

void readLine(const QByteArray &name, const QByteArray &value, Entry *entry) {
  if (name == "rot") {
    const double said = value.trimmed().toDouble();
    const int turn = std::abs(said) <= largestTurn ? static_cast<int>(said) : 0;
    entry->turn = ((turn % (4 * quarter)) + 4 * quarter) % (4 * quarter);
  } else if (name == "CropBox") {
    entry->shown = boxIn(value);
  } else if (name == "TrimBox") {
    entry->trim = boxIn(value);
  }
}

// The share of the shown box that the trim box is, the page unturned and y downwards.
QRectF shareOf(const Box &trim, const Box &shown) {
  return {(trim.left - shown.left) / shown.width(), (shown.top - trim.top) / shown.height(),
          trim.width() / shown.width(), trim.height() / shown.height()};
}

QRectF turnedShare(const QRectF &share, int turn) {
  switch (turn) {
    case quarter:
      return {1 - share.bottom(), share.left(), share.height(), share.width()};
    case 2 * quarter:
      return {1 - share.right(), 1 - share.bottom(), share.width(), share.height()};
    case 3 * quarter:
      return {share.top(), 1 - share.right(), share.height(), share.width()};
    default:
      return share;
  }
}

DocumentPage pageOf(const Entry &entry) {
  if (entry.shown.isEmpty()) return {};
  const Box &printed = entry.trim.isEmpty() ? entry.shown : entry.trim;
  DocumentPage page;
  page.turn = entry.turn;
  page.size = QSizeF(printed.width(), printed.height());
  page.part = turnedShare(shareOf(printed, entry.shown), entry.turn);
  if (entry.turn % (2 * quarter) != 0) page.size.transpose();
  return page;
}

/// A line about one page: "Page    1 CropBox:     0.00     0.00   595.00   842.00".
void readPageLine(const QByteArray &line, QList<Entry> *entries) {
  const qsizetype colon = line.indexOf(':');
  if (!line.startsWith("Page ") || colon < 0) return;
  const QList<QByteArray> words = line.left(colon).simplified().split(' ');
  const int number = words.size() == 3 ? words[1].toInt() : 0;
  // Pages come in their order; a number that is far ahead is no page's.
  if (number < 1 || number > mostPages || number > entries->size() + 1) return;
  if (number > entries->size()) entries->resize(number);
  readLine(words[2], line.mid(colon + 1), &(*entries)[number - 1]);
}

}  // namespace

QList<DocumentPage> pagesInReport(const QByteArray &report) {
  QList<Entry> entries;
  for (qsizetype at = 0; at < report.size();) {
    const qsizetype found = report.indexOf('\n', at);
    const qsizetype end = found < 0 ? report.size() : found;
    readPageLine(QByteArray::fromRawData(report.constData() + at, end - at), &entries);
    at = end + 1;
  }
  QList<DocumentPage> pages;
  pages.reserve(entries.size());
  for (const Entry &entry : entries) pages << pageOf(entry);
  return pages;
}

}  // namespace orvek
