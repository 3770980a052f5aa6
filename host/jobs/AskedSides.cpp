// SPDX-License-Identifier: Apache-2.0
// Asks the model of the print system's filters what they would choose.

#include "host/jobs/AskedSides.h"

#include <QCoreApplication>
#include <algorithm>
#include <optional>
#include <string>

#include "host/jobs/Document.h"
#include "imposition/ScriptLayout.h"
#include "imposition/SideOptions.h"
#include "platform/system/OptionMap.h"

namespace orvek {
namespace {

using imposition::FilterJob;

constexpr QLatin1String pageRangesOption("page-ranges");
constexpr QLatin1String pageSetOption("page-set");

// What makes no sense is for the filters to refuse, and counts as open here.
imposition::PageRange readRange(const QString &text) {
  constexpr double most = 1e9;
  const QString end = text.section(u'-', -1);
  const double last = end.trimmed().isEmpty() ? 0 : std::min(most, end.toDouble());
  const double first = std::min(most, text.section(u'-', 0, 0).toDouble());
  return {static_cast<int>(first), last < first ? 0 : static_cast<int>(last)};
}

FilterJob filterJobOf(const QMap<QString, QString> &options) {
  FilterJob job;
  imposition::readSideOptions(
      [&](const char *name) -> std::optional<std::string> {
        const auto value = valueNamed(options, QLatin1String(name));
        return value ? std::optional(value->toStdString()) : std::nullopt;
      },
      &job);
  const QString ranges = valueNamed(options, pageRangesOption).value_or(QString());
  for (const QString &range : ranges.split(u',', Qt::SkipEmptyParts)) {
    job.sides.ranges.push_back(readRange(range));
  }
  return job;
}

// The words of a job that choose among its sides, as they were written.
QString choiceAmongSides(const QMap<QString, QString> &options) {
  QStringList words;
  for (const QLatin1String name : {pageRangesOption, pageSetOption}) {
    const auto value = valueNamed(options, name);
    if (value) words << name + u'=' + *value;
  }
  return words.join(u' ');
}

}  // namespace

Status checkAskedSides(const QString &path, int pages, bool isScript,
                       const QMap<QString, QString> &options) {
  FilterJob job = filterJobOf(options);
  if (isScript) job = imposition::knownToScripts(job);
  const int made = imposition::madeSides(pages, job);
  if (made == 0 || imposition::filteredSides(pages, job) > 0) return {};
  const auto failure = [&path](const Phrase &why) {
    return Failure{FailureKind::Io, documentName(path), why};
  };
  const bool countsPages = made == pages && job.sides.parity == imposition::Parity::All;
  if (countsPages) {
    return failure(Phrase(
        QT_TRANSLATE_NOOP("orvek::Failure", "has no page %1: the number of its pages is %2"),
        {valueNamed(options, pageRangesOption).value_or(QString()), QString::number(pages)}));
  }
  return failure(
      Phrase(QT_TRANSLATE_NOOP("orvek::Failure",
                               "has no side that %1 asks for: the number of its sides is %2"),
             {choiceAmongSides(options), QString::number(made)}));
}

}  // namespace orvek
