// SPDX-License-Identifier: Apache-2.0
// Reads, sorts and joins page ranges.

#include "host/ticket/PageRanges.h"

#include <QRegularExpression>
#include <QStringList>
#include <algorithm>
#include <limits>

namespace orvek {
namespace {

constexpr int lastPossiblePage = std::numeric_limits<int>::max();

struct Range {
  int first = 1;
  int last = lastPossiblePage;
};

// What keyboards and word processors of other scripts put between numbers.
QString plainSigns(QString text) {
  for (const QChar dash :
       {QChar(0x2010), QChar(0x2013), QChar(0x2014), QChar(0x301C), QChar(0xFF0D), QChar(0xFF5E)}) {
    text.replace(dash, QLatin1Char('-'));
  }
  for (const QChar comma : {QChar(0x3001), QChar(0xFF0C), QChar(0xFF1B), QChar(';')}) {
    text.replace(comma, QLatin1Char(','));
  }
  for (QChar &sign : text) {
    if (sign.digitValue() >= 0) sign = QLatin1Char(static_cast<char>('0' + sign.digitValue()));
  }
  return text;
}

// What is beyond any document is as good as its end.
int lastPage(const QString &digits) {
  bool fits = false;
  const int number = digits.toInt(&fits);
  return fits ? number : lastPossiblePage;
}

// 0 where no document has so many pages.
int firstPage(const QString &digits) {
  return digits.isEmpty() ? 1 : digits.toInt();
}

std::optional<Range> readRange(const QString &text) {
  static const QRegularExpression pattern(
      QStringLiteral("\\A\\s*([0-9]*)\\s*(-?)\\s*([0-9]*)\\s*\\z"));
  const QRegularExpressionMatch match = pattern.match(text);
  const QString first = match.captured(1);
  const QString last = match.captured(3);
  if (!match.hasMatch() || (first.isEmpty() && last.isEmpty())) return std::nullopt;
  Range range{firstPage(first), lastPage(last)};
  if (match.captured(2).isEmpty()) {
    if (!last.isEmpty()) return std::nullopt;  // "1 3"
    range.last = range.first;
  }
  if (range.first < 1 || range.last < range.first) return std::nullopt;
  return range;
}

Failure noRange(const QString &text) {
  return {FailureKind::Usage, text.trimmed().isEmpty() ? QStringLiteral("\",\"") : text.trimmed(),
          Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "not a page range; write for example 1-3,7"))};
}

void sortAndJoin(QList<Range> *ranges) {
  std::sort(ranges->begin(), ranges->end(),
            [](const Range &one, const Range &other) { return one.first < other.first; });
  QList<Range> joined;
  for (const Range &range : *ranges) {
    if (!joined.isEmpty() && range.first <= joined.last().last) {
      joined.last().last = std::max(joined.last().last, range.last);
    } else {
      joined.append(range);
    }
  }
  *ranges = joined;
}

// The one grammar: ranges with commas between, in any order.
Result<QList<Range>> readRanges(const QString &text) {
  QList<Range> ranges;
  for (const QString &part : plainSigns(text).split(QLatin1Char(','))) {
    const std::optional<Range> range = readRange(part);
    if (!range) return noRange(part);
    ranges.append(*range);
  }
  sortAndJoin(&ranges);
  return ranges;
}

QString written(const Range &range) {
  const QString first = QString::number(range.first);
  if (range.first == range.last) return first;
  const QString last = range.last == lastPossiblePage ? QString() : QString::number(range.last);
  return first + QLatin1Char('-') + last;
}

}  // namespace

Result<QString> normalizedPageRanges(const QString &text) {
  if (text.trimmed().isEmpty()) return QString();
  const Result<QList<Range>> ranges = readRanges(text);
  if (!ranges) return ranges.failure();
  QStringList words;
  for (const Range &range : ranges.value()) words << written(range);
  return words.join(QLatin1Char(','));
}

std::vector<imposition::PageRange> pageRangesIn(const QString &pageRanges) {
  std::vector<imposition::PageRange> found;
  const Result<QList<Range>> ranges = readRanges(pageRanges);
  if (!ranges) return found;
  for (const Range &range : ranges.value()) {
    found.push_back({range.first, range.last == lastPossiblePage ? 0 : range.last});
  }
  return found;
}

QList<int> pagesInRanges(const QString &pageRanges, int pageCount) {
  const Result<QList<Range>> ranges = readRanges(pageRanges);
  QList<int> pages;
  for (const Range &range : ranges ? ranges.value() : QList<Range>{Range()}) {
    for (int page = range.first; page <= std::min(range.last, pageCount); ++page) pages << page;
  }
  return pages;
}

}  // namespace orvek
