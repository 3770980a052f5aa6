// SPDX-License-Identifier: Apache-2.0
// Reads marks, and the options that the job will carry: whoever gave them, they are what is
// printed.

#include "host/preview/JobLayout.h"

#include <algorithm>

#include "host/ppd/Keyword.h"
#include "host/ppd/Paper.h"
#include "host/session/PrintSession.h"
#include "host/ticket/AskedOptions.h"
#include "host/ticket/JobOptionNames.h"
#include "host/ticket/PageRanges.h"
#include "imposition/SideOptions.h"
#include "platform/system/OptionMap.h"
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
  return valueNamed(options, QLatin1String(name)).value_or(QString());
}

bool isOn(const QString &value) {
  return imposition::isOn(value.toStdString());
}

Options allOptions(PrintSession &session) {
  Options options = session.job().options();
  const Options saved = session.job().savedOptions(options);
  options.insert(saved);
  return options;
}

// What makes no sense to a reader is no setting. Of two words for one the filters prefer this.
JobSettings settingsIn(const Options &options) {
  AskedOptions read;
  for (auto option = options.cbegin(); option != options.cend(); ++option) {
    static_cast<void>(read.take(option.key(), option.value()));
  }
  const auto landscape = valueNamed(options, landscapeOption);
  if (landscape) static_cast<void>(read.take(landscapeOption, *landscape));
  return read.settings;
}

ValueOf said(const Options &options) {
  return [&](const char *option) -> std::optional<std::string> {
    const auto value = valueNamed(options, QLatin1String(option));
    return value ? std::optional(value->toStdString()) : std::nullopt;
  };
}

// What is marked says more than a word of the print server.
ValueOf markedOrSaid(const Marks &marks, const Options &options) {
  return [&](const char *option) -> std::optional<std::string> {
    const QString marked = marks.marked(QString::fromLatin1(option));
    if (!marked.isNull()) return marked.toStdString();
    return said(options)(option);
  };
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

// "landscape" is the printer's own turn, whichever that is; a number says which one is meant.
Turning turningIn(const Options &options, bool turnsRight) {
  const Turning turning = turningOf(settingsIn(options).orientation);
  const bool isPrintersOwn = isOn(word(options, landscapeOption.data()));
  return turnsRight && isPrintersOwn ? Turning::ReverseLandscape : turning;
}

Scaling scalingOf(const Options &options) {
  const QString asked = word(options, "print-scaling");
  if (sameKeyword(asked, "fit")) return Scaling::Fit;
  if (sameKeyword(asked, "fill")) return Scaling::Fill;
  if (sameKeyword(asked, "none")) return Scaling::None;
  for (const char *name : {"fit-to-page", "fitplot", "ipp-attribute-fidelity"}) {
    if (isOn(word(options, name))) return Scaling::Fit;
  }
  return isOn(word(options, "fill")) ? Scaling::Fill : Scaling::Automatic;
}

// The printer's own habit counts where the job says nothing: a tray that piles sheets face up.
bool printsLastFirst(const Marks &marks) {
  const QString order = marks.marked(QStringLiteral("OutputOrder"));
  if (!order.isNull()) return sameKeyword(order, "Reverse");
  return stacksReversed(marks.printer(), marks.marked(QStringLiteral("OutputBin")));
}

// A tray's habit changes nothing in what a booklet is read like.
void readOrder(const Marks &marks, const Options &options, SheetJob *job) {
  const bool habit = !job->booklet.enabled && printsLastFirst(marks);
  job->filters.sides.reverse = readReversed(said(options)).value_or(habit);
  const auto order = valueNamed(options, QLatin1String(orderOptions[0]));
  job->isScriptReversed = order ? sameKeyword(*order, "reverse") : habit;
  job->isTurnedForTray = stacksReversed(marks.printer(), marks.marked(QStringLiteral("OutputBin")));
}

// The filter of PostScript knows fewer words for it, and no other spelling of a boolean.
bool fitsScripts(const Options &options) {
  const auto isTrue = [&](const char *name) { return sameKeyword(word(options, name), "true"); };
  return isTrue("fit-to-page") || isTrue("ipp-attribute-fidelity");
}

// What the standard filters do beside scaling pages.
void readPlaces(const Marks &marks, const Options &options, FilterJob *job) {
  readSideOptions(said(options), job);
  job->sides.ranges = pageRangesIn(settingsIn(options).pageRanges);
  job->isMirrored =
      isOn(word(options, "mirror")) || isOn(marks.marked(QStringLiteral("MirrorPrint")));
  job->fitsScripts = fitsScripts(options);
}

void readSides(const Marks &marks, const Options &options, SheetJob *job) {
  const Duplexing duplexing = readDuplexing(markedOrSaid(marks, options));
  job->twoSided = duplexing != Duplexing::None;
  job->turnsOverShortEdge = duplexing == Duplexing::ShortEdge;
}

void readBooklet(const Marks &marks, const Options &options, SheetJob *job) {
  job->booklet = readBookletKeys(said(options));
  const QList<PrinterChoice> sizes = marks.printer().choices(pageSizeOption);
  const auto choice = targetPaperChoice(job->booklet.targetPaper, static_cast<int>(sizes.size()));
  if (!choice) return;
  const QSizeF paper = paperSize(marks.printer(), sizes[*choice].keyword);
  job->bookletPaper = {paper.width(), paper.height()};
}

SheetJob sheetJobOf(const PrintSession &session, const Options &options) {
  const Marks &marks = session.marks();
  SheetJob job;
  readPaper(session, options, &job.filters);
  job.filters.landscapeTurnsRight = turnsRight(marks.printer());
  job.filters.turning = turningIn(options, job.filters.landscapeTurnsRight);
  job.filters.scaling = scalingOf(options);
  readPlaces(marks, options, &job.filters);
  readSides(marks, options, &job);
  readBooklet(marks, options, &job);
  readOrder(marks, options, &job);
  job.finishing = readFinishing(markedOrSaid(marks, options));
  job.inGray = readsAsGray(markedOrSaid(marks, options));
  return job;
}

}  // namespace

LaidOutJob laidOutJobOf(PrintSession &session) {
  const Options options = allOptions(session);
  const QString ppd = session.origin().printer ? session.origin().printer->path() : QString();
  return {
      sheetJobOf(session, options), settingsIn(options).copies, {ppd, optionsForPages(options)}};
}

std::vector<PrintedSide> sidesOf(const DocumentPages &document, const SheetJob &job) {
  std::vector<Size> sizes;
  sizes.reserve(static_cast<std::size_t>(document.pages.size()));
  for (const DocumentPage &page : document.pages) {
    sizes.push_back({page.size.width(), page.size.height()});
  }
  SheetJob asked = job;
  if (job.filters.position != Position()) {
    for (const DocumentPage &page : document.pages) asked.filters.ownTurns.push_back(page.turn);
  }
  if (document.isPlaced) {
    const FilterJob placed = asked.filters;
    asked.filters = {};
    asked.filters.paper = placed.paper;
    asked.filters.scaling = Scaling::None;
  }
  // There is but one filter of PostScript, and it turns the order round but once.
  asked.isScript = document.isScript && !job.booklet.enabled;
  if (asked.isScript) {
    asked.isTurnedForTray = false;
    asked.filters.sides.reverse = job.isScriptReversed;
  }
  return printedSides(sizes, asked);
}

}  // namespace orvek
