// SPDX-License-Identifier: Apache-2.0
// Reads job settings from the names that CUPS and lp give them.

#include "host/ticket/AskedOptions.h"

#include <QRegularExpression>
#include <algorithm>
#include <array>
#include <optional>

#include "host/ppd/Keyword.h"
#include "host/ticket/JobOptionNames.h"
#include "host/ticket/PageRanges.h"

namespace orvek {
namespace {

std::optional<bool> readFlag(const QString &value) {
  if (isAnyOf(value, {"true", "yes", "on"})) return true;
  if (isAnyOf(value, {"false", "no", "off"})) return false;
  return std::nullopt;
}

bool readCopies(JobSettings *settings, const QString &value) {
  bool isNumber = false;
  const int copies = value.toInt(&isNumber);
  if (!isNumber || copies < 1 || copies > maximumCopies) return false;
  settings->copies = copies;
  return true;
}

bool readCollate(JobSettings *settings, const QString &value) {
  const std::optional<bool> flag = readFlag(value);
  settings->collate = flag.value_or(settings->collate);
  return flag.has_value();
}

bool readHandling(JobSettings *settings, const QString &value) {
  settings->collate = !sameKeyword(value, uncollatedCopies);
  return isAnyOf(value, {collatedCopies, uncollatedCopies});
}

bool readRanges(JobSettings *settings, const QString &value) {
  const Result<QString> ranges = normalizedPageRanges(value);
  if (ranges) settings->pageRanges = ranges.value();
  return ranges.ok();
}

bool readOrientation(JobSettings *settings, const QString &value) {
  const auto found = std::find_if(
      orientationNumbers.begin(), orientationNumbers.end(),
      [&](const OrientationNumber &entry) { return value == QString::number(entry.number); });
  if (found == orientationNumbers.end()) return false;
  settings->orientation = found->orientation;
  return true;
}

bool readLandscape(JobSettings *settings, const QString &value) {
  const std::optional<bool> flag = readFlag(value);
  if (flag) settings->orientation = *flag ? Orientation::Landscape : Orientation::Portrait;
  return flag.has_value();
}

bool readOrder(JobSettings *settings, const QString &value) {
  settings->reverse = sameKeyword(value, lastPageFirst);
  return isAnyOf(value, {lastPageFirst, firstPageFirst});
}

// A number that no filter can hold would come out as another one.
QString asWritten(const QString &value, const JobSettings &read) {
  static const QRegularExpression tooLong(QStringLiteral("[0-9]{10}"));
  return value.contains(tooLong) && !read.pageRanges.isEmpty() ? read.pageRanges : value;
}

struct Reader {
  QLatin1String name;
  bool (*read)(JobSettings *, const QString &);
};
constexpr std::array<Reader, 7> readers{{
    {copiesOption, readCopies},
    {collateOption, readCollate},
    {handlingOption, readHandling},
    {pageRangesOption, readRanges},
    {orientationOption, readOrientation},
    {landscapeOption, readLandscape},
    {outputOrderOption, readOrder},
}};

}  // namespace

Result<bool> AskedOptions::take(const QString &name, const QString &value) {
  const auto reader = std::find_if(readers.begin(), readers.end(), [&](const Reader &entry) {
    return sameKeyword(entry.name, name);
  });
  if (reader == readers.end()) return false;
  JobSettings read = settings;
  if (!reader->read(&read, value)) {
    return Failure{FailureKind::Usage, QStringLiteral("-o %1=%2").arg(name, value),
                   QStringLiteral("the option has no such value")};
  }
  settings = read;
  words.insert(name, reader->name == pageRangesOption ? asWritten(value, read) : value);
  return true;
}

}  // namespace orvek
