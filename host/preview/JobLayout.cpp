// SPDX-License-Identifier: Apache-2.0
// Reads marks, ticket and job settings.

#include "host/preview/JobLayout.h"

#include <algorithm>

#include "host/ppd/Paper.h"
#include "host/session/PrintSession.h"
#include "host/ticket/PageRanges.h"
// clang-format off
#include <cups/cups.h>
#include <cups/pwg.h>
// clang-format on

namespace orvek {
namespace {

using namespace imposition;

constexpr Size a4{595, 842};
constexpr double hundredthsPerPoint = 2540 / 72.0;

const QString pageSizeOption = QStringLiteral("PageSize");

using Options = QMap<QString, QString>;

QString word(const Options &options, const char *name) {
  return options.value(QString::fromLatin1(name));
}

bool isOn(const Options &options, const char *name) {
  const QString value = word(options, name).toLower();
  return value == QLatin1String("true") || value == QLatin1String("on") ||
         value == QLatin1String("yes");
}

Size sizeOfMedia(const QString &media) {
  for (const QString &part : media.split(QLatin1Char(','))) {
    const pwg_media_t *known = pwgMediaForPWG(part.toUtf8().constData());
    if (known == nullptr) known = pwgMediaForLegacy(part.toUtf8().constData());
    if (known != nullptr) {
      return {known->width / hundredthsPerPoint, known->length / hundredthsPerPoint};
    }
  }
  return a4;
}

void readPaper(const PrintSession &session, const Options &options, FilterJob *job) {
  const PrinterDescription &printer = session.marks().printer();
  const QString marked = session.marks().marked(pageSizeOption);
  const QSizeF size = paperSize(printer, marked);
  if (size.isEmpty()) {
    job->paper = sizeOfMedia(word(options, "media"));
    return;
  }
  const QRectF area = printableArea(printer, marked);
  job->paper = {size.width(), size.height()};
  job->printable = {area.x(), area.y(), area.width(), area.height()};
}

Turning turningOf(Orientation orientation) {
  switch (orientation) {
    case Orientation::Landscape:
      return Turning::Landscape;
    case Orientation::ReverseLandscape:
      return Turning::ReverseLandscape;
    case Orientation::ReversePortrait:
      return Turning::ReversePortrait;
    case Orientation::Automatic:
    case Orientation::Portrait:
      break;
  }
  return Turning::Portrait;
}

bool turnsRight(const PrinterDescription &printer) {
  return printer.attribute("LandscapeOrientation") == QLatin1String("Minus90");
}

Scaling scalingOf(const Options &options) {
  const QString asked = word(options, "print-scaling");
  if (asked == QLatin1String("fit")) return Scaling::Fit;
  if (asked == QLatin1String("fill")) return Scaling::Fill;
  if (asked == QLatin1String("none")) return Scaling::None;
  for (const char *name : {"fit-to-page", "fitplot", "ipp-attribute-fidelity"}) {
    if (isOn(options, name)) return Scaling::Fit;
  }
  return isOn(options, "fill") ? Scaling::Fill : Scaling::Automatic;
}

// The printer's own habit counts where the job says nothing: a tray that piles sheets face up.
bool printsLastFirst(const Marks &marks) {
  const QString order = marks.marked(QStringLiteral("OutputOrder"));
  if (!order.isNull()) return order.compare(QLatin1String("Reverse"), Qt::CaseInsensitive) == 0;
  return stacksReversed(marks.printer(), marks.marked(QStringLiteral("OutputBin")));
}

bool isReversed(const PrintSession &session, const Options &options) {
  if (session.job().settings().reverse) return true;
  if (options.contains(QStringLiteral("outputorder"))) return false;
  const QString delivery = word(options, "page-delivery");
  if (!delivery.isEmpty()) return delivery.startsWith(QLatin1String("reverse"));
  return printsLastFirst(session.marks());
}

void readSelection(const PrintSession &session, const Options &options, SideSelection *sides) {
  sides->ranges = pageRangesIn(session.job().settings().pageRanges);
  const QString set = word(options, "page-set");
  if (set == QLatin1String("odd")) sides->parity = Parity::Odd;
  if (set == QLatin1String("even")) sides->parity = Parity::Even;
  sides->reverse = isReversed(session, options);
}

void readSides(const Marks &marks, const Options &options, SheetJob *job) {
  const QString sides = word(options, "sides");
  job->twoSided = sides.startsWith(QLatin1String("two-sided"));
  job->turnsOverShortEdge = sides == QLatin1String("two-sided-short-edge");
  for (const char *option : {"Duplex", "JCLDuplex", "EFDuplex", "ARDuplex", "KD03Duplex"}) {
    const QString marked = marks.marked(QString::fromLatin1(option));
    if (marked.isNull()) continue;
    job->twoSided = marked.startsWith(QLatin1String("Duplex"), Qt::CaseInsensitive) ||
                    marked.startsWith(QLatin1String("Front"), Qt::CaseInsensitive);
    job->turnsOverShortEdge = job->twoSided && (marked == QLatin1String("DuplexTumble") ||
                                                marked.startsWith(QLatin1String("FrontTumble")));
    return;
  }
}

void readBooklet(const Marks &marks, const Options &options, SheetJob *job) {
  job->booklet = readBookletKeys([&](const char *key) -> std::optional<std::string> {
    const auto found = options.constFind(QString::fromLatin1(key));
    if (found == options.constEnd()) return std::nullopt;
    return found->toStdString();
  });
  const QList<PrinterChoice> sizes = marks.printer().choices(pageSizeOption);
  const auto choice = targetPaperChoice(job->booklet.targetPaper, static_cast<int>(sizes.size()));
  if (!choice) return;
  const QSizeF paper = paperSize(marks.printer(), sizes[*choice].keyword);
  job->bookletPaper = {paper.width(), paper.height()};
}

Finishing finishingOf(const Marks &marks, const Options &options) {
  return readFinishing([&](const char *option) -> std::optional<std::string> {
    const QString name = QString::fromLatin1(option);
    const QString marked = marks.marked(name);
    if (!marked.isNull()) return marked.toStdString();
    const auto asked = options.constFind(name);
    if (asked == options.constEnd()) return std::nullopt;
    return asked->toStdString();
  });
}

}  // namespace

SheetJob sheetJobOf(PrintSession &session) {
  const Options options = session.job().options();
  SheetJob job;
  readPaper(session, options, &job.filters);
  job.filters.turning = turningOf(session.job().settings().orientation);
  job.filters.landscapeTurnsRight = turnsRight(session.marks().printer());
  job.filters.pagesPerSide = std::max(1, session.job().pagesPerSheet());
  job.filters.order = word(options, "number-up-layout").toStdString();
  job.filters.scaling = scalingOf(options);
  readSelection(session, options, &job.filters.sides);
  readSides(session.marks(), options, &job);
  readBooklet(session.marks(), options, &job);
  job.finishing = finishingOf(session.marks(), options);
  return job;
}

PrintedWith printedWith(PrintSession &session) {
  const QString ppd = session.printer() ? session.printer()->path() : QString();
  return {ppd, optionsForPages(session.job().options())};
}

std::vector<PrintedSide> sidesOf(const DocumentPages &document, const SheetJob &job) {
  std::vector<Size> sizes;
  sizes.reserve(static_cast<std::size_t>(document.pages.size()));
  for (const DocumentPage &page : document.pages) {
    sizes.push_back({page.size.width(), page.size.height()});
  }
  SheetJob asked = job;
  if (document.isPlaced) {
    const FilterJob placed = asked.filters;
    asked.filters = {};
    asked.filters.paper = placed.paper;
    asked.filters.scaling = Scaling::None;
  }
  // The filters of PostScript fit several pages into the printable area, and never scale one.
  if (document.isScript && !job.booklet.enabled) {
    asked.filters.scaling = job.filters.pagesPerSide > 1 ? Scaling::Fit : Scaling::None;
  }
  return printedSides(sizes, asked);
}

}  // namespace orvek
