// SPDX-License-Identifier: Apache-2.0
// Finds staples and booklets in marks and ticket.

#include "host/session/JobWarnings.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>

#include "host/ppd/Constraints.h"
#include "host/ppd/Wording.h"
#include "host/session/CommonSettings.h"
#include "host/session/PrintSession.h"
#include "host/ticket/BookletSettings.h"
#include "host/ticket/PageRanges.h"
#include "imposition/Finishing.h"
#include "imposition/JobSheets.h"
#include "imposition/ScriptLayout.h"
#include "imposition/SideOptions.h"
#include "platform/plugin/FinishingKeywords.h"
#include "platform/printing/PrintSettings.h"
#include "platform/system/OptionMap.h"

namespace orvek {
namespace {

constexpr int usualMaximumSheets = 15;
constexpr std::array<const char *, 3> staplingOptions{staplingKeyword, "Stapling",
                                                      "StapleLocation"};

struct Words {
  Q_DECLARE_TR_FUNCTIONS(orvek::JobWarnings)
};

bool isOff(const QString &choice) {
  return isAnyOf(choice, {"", "None", "False", "Off"});
}

QString staplesUncollated(const Marks &marks, const JobSettings &settings) {
  if (settings.copies < 2 || settings.collate) return {};
  const auto stapling = std::find_if(
      staplingOptions.begin(), staplingOptions.end(),
      [&](const char *option) { return !isOff(marks.marked(QString::fromLatin1(option))); });
  if (stapling == staplingOptions.end()) return {};
  const QString option = QString::fromLatin1(*stapling);
  return Words::tr("%1 with copies that are not collated: equal pages would be stapled together")
      .arg(namedChoice(marks.printer(), {option, marks.marked(option)}));
}

imposition::ValueOf markedIn(const Marks &marks) {
  return [&marks](const char *option) -> std::optional<std::string> {
    const QString marked = marks.marked(QString::fromLatin1(option));
    return marked.isNull() ? std::nullopt : std::optional(marked.toStdString());
  };
}

// Of a booklet that leaves the printer flat, whoever folds it knows how many sheets go together.
bool isFoldedByPrinter(const Marks &marks, const TicketValues &ticket) {
  if (sameKeyword(marks.marked(QLatin1String(foldingKeyword)), saddleFold)) return true;
  const imposition::Finishing finishing = imposition::readFinishing(markedIn(marks));
  return bookletSettings(ticket).enabled && (finishing.stapledInFold || !finishing.fold.empty());
}

imposition::SheetJob sheetJobOf(const Marks &marks, const TicketValues &ticket,
                                const JobSettings &settings) {
  imposition::SheetJob job;
  job.booklet = bookletSettings(ticket);
  job.twoSided = imposition::readDuplexing(markedIn(marks)) != imposition::Duplexing::None;
  job.filters.pagesPerSide = std::max(1, integerReading(ticket.value(layoutNUpKey)));
  job.filters.sides.ranges = pageRangesIn(settings.pageRanges);
  return job;
}

QString tooManySheets(const Marks &marks, const TicketValues &ticket, const JobSettings &settings,
                      int pages) {
  if (!warningsDependOnPages(marks, ticket)) return {};
  const int sheets = imposition::sheetsFor(pages, sheetJobOf(marks, ticket, settings));
  const int most = maximumBookletSheets(marks.printer());
  if (sheets <= most) return {};
  return Words::tr("A booklet of %1 sheets is more than the printer folds at once: at most %2")
      .arg(sheets)
      .arg(most);
}

// A booklet is printed on both sides whatever the marks say, so no pick weighed them against it.
QString notOnBothSides(const PrintSession &session) {
  const auto sides = sidesOfBooklet(session);
  if (!sides) return {};
  QStringList partners;
  for (const OptionChoice &partner : conflictsOf(session.marks(), *sides)) {
    const bool isItself = partner.option == sides->option;
    if (!isItself) partners << namedChoice(session.marks().printer(), partner);
  }
  if (partners.isEmpty()) return {};
  return Words::tr("A booklet is printed on both sides, which can't be combined with %1")
      .arg(partners.join(QStringLiteral(", ")));
}

}  // namespace

DocumentSides documentSides(PrintSession &session) {
  DocumentSides document{session.job().documentPages(), {}};
  if (document.pages <= 0) return document;
  QMap<QString, QString> options = session.job().options();
  options.insert(session.job().savedOptions(options));
  imposition::readSideOptions(
      [&options](const char *option) -> std::optional<std::string> {
        const auto value = valueNamed(options, QLatin1String(option));
        return value ? std::optional(value->toStdString()) : std::nullopt;
      },
      &document.filters);
  if (session.job().documentIsScript()) {
    document.filters = imposition::knownToScripts(document.filters);
  }
  return document;
}

QString pagesProblem(const JobSettings &settings, const DocumentSides &document) {
  if (!settings.pageRangesProblem.isNull()) return settings.pageRangesProblem;
  imposition::FilterJob job = document.filters;
  job.sides.ranges = pageRangesIn(settings.pageRanges);
  const int made = imposition::madeSides(document.pages, job);
  if (made == 0 || imposition::filteredSides(document.pages, job) > 0) return {};
  const bool countsPages = made == document.pages && job.sides.parity == imposition::Parity::All;
  if (!countsPages) {
    return Words::tr("None of the sides that are asked for exists: the number of sides is %1")
        .arg(made);
  }
  return Words::tr("The document has no page %1: the number of its pages is %2")
      .arg(settings.pageRanges)
      .arg(document.pages);
}

int maximumBookletSheets(const PrinterDescription &printer) {
  const int sheets = leadingInteger(printer.attribute(maximumBookletSheetsAttribute));
  return sheets > 0 ? sheets : usualMaximumSheets;
}

bool warningsDependOnPages(const Marks &marks, const TicketValues &ticket) {
  return isFoldedByPrinter(marks, ticket);
}

QStringList jobWarnings(const Marks &marks, const TicketValues &ticket, const JobSettings &settings,
                        int pages) {
  QStringList words{staplesUncollated(marks, settings),
                    tooManySheets(marks, ticket, settings, pages)};
  words.removeAll(QString());
  return words;
}

QStringList jobWarnings(const PrintSession &session, int pages) {
  QStringList words =
      jobWarnings(session.marks(), session.ticket().values(), session.job().settings(), pages);
  words << notOnBothSides(session);
  words.removeAll(QString());
  return words;
}

QString thickBooklet(const PrintSession &session) {
  const SessionJob &job = session.job();
  return tooManySheets(session.marks(), session.ticket().values(), job.settings(),
                       job.documentPages());
}

}  // namespace orvek
