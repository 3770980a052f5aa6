// SPDX-License-Identifier: Apache-2.0
// Finds staples and booklets in marks and ticket.

#include "host/session/JobWarnings.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>

#include "host/ppd/Wording.h"
#include "host/session/PrintSession.h"
#include "host/ticket/BookletSettings.h"
#include "host/ticket/PageRanges.h"
#include "platform/printing/PrintSettings.h"

namespace orvek {
namespace {

constexpr int usualMaximumSheets = 15;
constexpr const char *maximumSheetsAttribute = "OVKBookletMaximumSheets";
constexpr std::array<const char *, 3> staplingOptions{"OVKStapling", "Stapling", "StapleLocation"};
constexpr const char *foldingOption = "OVKFolding";
constexpr const char *saddleFold = "Saddle";

struct Words {
  Q_DECLARE_TR_FUNCTIONS(orvek::JobWarnings)
};

bool isOff(const QString &choice) {
  return choice.isEmpty() || choice.compare(QLatin1String("None"), Qt::CaseInsensitive) == 0 ||
         choice.compare(QLatin1String("False"), Qt::CaseInsensitive) == 0 ||
         choice.compare(QLatin1String("Off"), Qt::CaseInsensitive) == 0;
}

QString staplesUncollated(const Marks &marks, const JobSettings &settings) {
  if (settings.copies < 2 || settings.collate) return {};
  const auto stapling = std::find_if(
      staplingOptions.begin(), staplingOptions.end(),
      [&](const char *option) { return !isOff(marks.marked(QString::fromLatin1(option))); });
  if (stapling == staplingOptions.end()) return {};
  const QString option = QString::fromLatin1(*stapling);
  return Words::tr("%1 with copies that are not collated: equal pages would be stapled together")
      .arg(namedChoice(marks.ppd(), {option, marks.marked(option)}));
}

bool isSaddleFolded(const Marks &marks) {
  return marks.marked(QString::fromLatin1(foldingOption))
             .compare(QLatin1String(saddleFold), Qt::CaseInsensitive) == 0;
}

bool isTwoSided(const Marks &marks) {
  return !isOff(marks.marked(QStringLiteral("Duplex")));
}

// Without the booklet's page order the sheets are what the layout makes them.
int sheetsOf(const Marks &marks, const TicketValues &ticket, int pages) {
  if (bookletSettings(ticket).enabled) return bookletSheets(pages);
  const int perSide = std::max(1, integerReading(ticket.value(layoutKey)));
  const int perSheet = perSide * (isTwoSided(marks) ? 2 : 1);
  return pages <= 0 ? 0 : (pages - 1) / perSheet + 1;
}

QString tooManySheets(const Marks &marks, const TicketValues &ticket, int pages) {
  if (!warningsDependOnPages(marks, ticket)) return {};
  const int sheets = sheetsOf(marks, ticket, pages);
  const int most = maximumBookletSheets(marks.ppd());
  if (sheets <= most) return {};
  return Words::tr("A booklet of %1 sheets is more than the printer folds at once: at most %2")
      .arg(sheets)
      .arg(most);
}

}  // namespace

int maximumBookletSheets(ppd_file_t *ppd) {
  const ppd_attr_t *attribute =
      ppd == nullptr ? nullptr : ppdFindAttr(ppd, maximumSheetsAttribute, nullptr);
  const int sheets = attribute == nullptr ? 0 : leadingInteger(QString::fromUtf8(attribute->value));
  return sheets > 0 ? sheets : usualMaximumSheets;
}

bool warningsDependOnPages(const Marks &marks, const TicketValues &ticket) {
  return bookletSettings(ticket).enabled || isSaddleFolded(marks);
}

QStringList jobWarnings(const Marks &marks, const TicketValues &ticket, const JobSettings &settings,
                        int pages) {
  const int printed = static_cast<int>(pagesInRanges(settings.pageRanges, pages).size());
  QStringList words{settings.pageRangesProblem, staplesUncollated(marks, settings),
                    tooManySheets(marks, ticket, printed)};
  words.removeAll(QString());
  return words;
}

QStringList jobWarnings(const PrintSession &session, int pages) {
  return jobWarnings(session.marks(), session.ticket().values(), session.job().settings(), pages);
}

}  // namespace orvek
