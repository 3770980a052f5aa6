// SPDX-License-Identifier: Apache-2.0
// Job settings to CUPS' option names, and back.

#include "host/ticket/JobSettings.h"

#include <algorithm>
#include <array>

#include "host/ticket/PageRanges.h"

namespace orvek {
namespace {

const QString copiesName = QStringLiteral("copies");
const QString collateName = QString::fromLatin1(collateOption);
const QString pageRangesName = QStringLiteral("page-ranges");
const QString orientationName = QStringLiteral("orientation-requested");
const QString landscapeName = QStringLiteral("landscape");
const QString handlingName = QStringLiteral("multiple-document-handling");
const QString orderName = QStringLiteral("outputorder");

struct OrientationNumber {
  Orientation orientation;
  int number;  // orientation-requested, RFC 8011
};
constexpr std::array<OrientationNumber, 4> orientationNumbers{{
    {Orientation::Portrait, 3},
    {Orientation::Landscape, 4},
    {Orientation::ReverseLandscape, 5},
    {Orientation::ReversePortrait, 6},
}};

bool is(const QString &one, const QString &other) {
  return one.compare(other, Qt::CaseInsensitive) == 0;
}

// The name under which toOptions says the same.
QString usualName(const QString &name) {
  if (is(name, landscapeName)) return orientationName;
  if (is(name, handlingName) || is(name, collateName)) return collateName;
  return name.toLower();
}

std::optional<bool> readFlag(const QString &value) {
  for (const char *yes : {"true", "yes", "on"}) {
    if (is(value, QString::fromLatin1(yes))) return true;
  }
  for (const char *no : {"false", "no", "off"}) {
    if (is(value, QString::fromLatin1(no))) return false;
  }
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
  const bool uncollated = is(value, QStringLiteral("separate-documents-uncollated-copies"));
  settings->collate = !uncollated;
  return uncollated || is(value, QStringLiteral("separate-documents-collated-copies"));
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
  settings->reverse = is(value, QStringLiteral("reverse"));
  return settings->reverse || is(value, QStringLiteral("normal"));
}

struct Reader {
  const QString &name;
  bool (*read)(JobSettings *, const QString &);
};
const std::array<Reader, 7> readers{{
    {copiesName, readCopies},
    {collateName, readCollate},
    {handlingName, readHandling},
    {pageRangesName, readRanges},
    {orientationName, readOrientation},
    {landscapeName, readLandscape},
    {orderName, readOrder},
}};

}  // namespace

QMap<QString, QString> toOptions(const JobSettings &settings) {
  QMap<QString, QString> options;
  if (settings.copies != 1) options.insert(copiesName, QString::number(settings.copies));
  if (!settings.collate) options.insert(collateName, QStringLiteral("False"));
  if (!settings.pageRanges.isEmpty()) options.insert(pageRangesName, settings.pageRanges);
  for (const OrientationNumber &entry : orientationNumbers) {
    if (entry.orientation == settings.orientation) {
      options.insert(orientationName, QString::number(entry.number));
    }
  }
  if (settings.reverse) options.insert(orderName, QStringLiteral("reverse"));
  return options;
}

Result<bool> AskedOptions::take(const QString &name, const QString &value) {
  const auto reader = std::find_if(readers.begin(), readers.end(),
                                   [&](const Reader &entry) { return is(entry.name, name); });
  if (reader == readers.end()) return false;
  JobSettings read = settings;
  if (!reader->read(&read, value)) {
    return Failure{FailureKind::Usage, QStringLiteral("-o %1=%2").arg(name, value),
                   QStringLiteral("the option has no such value")};
  }
  settings = read;
  words.insert(name, value);
  return true;
}

QMap<QString, QString> toOptions(const JobSettings &settings, const AskedOptions &asked) {
  QMap<QString, QString> options = toOptions(settings);
  const QMap<QString, QString> now = options;
  const QMap<QString, QString> then = toOptions(asked.settings);
  for (auto word = asked.words.begin(); word != asked.words.end(); ++word) {
    const QString name = usualName(word.key());
    if (now.value(name) != then.value(name)) continue;
    options.remove(name);
    options.insert(word.key(), word.value());
  }
  return options;
}

}  // namespace orvek
