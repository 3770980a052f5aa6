// SPDX-License-Identifier: Apache-2.0
// Merges the panels' summaries with the marks that no panel speaks of.

#include "host/dialog/SummaryLines.h"

#include <QCoreApplication>
#include <QSet>
#include <algorithm>

#include "host/ppd/Wording.h"
#include "host/session/CommonSettings.h"

namespace orvek {
namespace {

// Titles and values of the marks that are not the PPD's own, and of a booklet's sides.
QMap<QString, QString> changedOptions(const PrintSession &session, QStringList *order) {
  QMap<QString, QString> changed;
  if (!session.origin().printer) return changed;
  const PrinterDescription &printer = *session.origin().printer;
  for (const OptionChoice &mark : session.marks().differingFromDefaults()) {
    if (printer.isEquipment(mark.option)) continue;
    const QString title = optionText(printer, mark.option);
    *order << title;
    changed.insert(title, choiceText(printer, mark));
  }
  if (const auto sides = sidesOfBooklet(session)) {
    const QString title = optionText(printer, sides->option);
    if (!changed.contains(title)) *order << title;
    changed.insert(title, choiceText(printer, *sides));
  }
  return changed;
}

/// The texts of this file, for translation.
struct Text {
  Q_DECLARE_TR_FUNCTIONS(orvek::SummaryLines)
};

QString orientationText(Orientation orientation) {
  switch (orientation) {
    case Orientation::Portrait:
      return Text::tr("Portrait");
    case Orientation::Landscape:
      return Text::tr("Landscape");
    case Orientation::ReversePortrait:
      return Text::tr("Portrait, upside down");
    case Orientation::ReverseLandscape:
      return Text::tr("Landscape, upside down");
    case Orientation::Automatic:
      break;
  }
  return Text::tr("Automatic");
}

// What the job settings and the layout say beside the printer's options.
QList<SummaryLine> jobLines(const PrintSession &session) {
  const JobSettings settings = session.job().settings();
  QList<SummaryLine> lines;
  if (settings.copies > 1) {
    lines << SummaryLine{Text::tr("Copies"), QString::number(settings.copies), true};
    const QString order = settings.collate ? Text::tr("Set by set") : Text::tr("Page by page");
    lines << SummaryLine{Text::tr("Order of copies"), order, !settings.collate};
  }
  if (!settings.pageRanges.isEmpty()) {
    lines << SummaryLine{Text::tr("Pages"), settings.pageRanges, true};
  }
  if (settings.orientation != Orientation::Automatic) {
    lines << SummaryLine{Text::tr("Orientation"), orientationText(settings.orientation), true};
  }
  if (settings.reverse) {
    lines << SummaryLine{Text::tr("Page order"), Text::tr("Last page first"), true};
  }
  if (const int pages = session.job().pagesPerSheet(); pages > 1) {
    lines << SummaryLine{Text::tr("Pages per sheet"), QString::number(pages), true};
  }
  return lines;
}

// The titles of the options that panels took over: what of those changed, the marks say.
QSet<QString> optionTitles(const PrintSession &session) {
  QSet<QString> titles;
  if (!session.origin().printer) return titles;
  for (const QString &option : session.panels().claimedOptions()) {
    titles.insert(optionText(*session.origin().printer, option));
  }
  return titles;
}

// What is not known yet counts as unchanged.
QMap<QString, QString> defaultsOf(const PrintSession &session) {
  QMap<QString, QString> defaults;
  const QSet<QString> options = optionTitles(session);
  for (const auto &[title, value] : session.defaultSummary().value_or(SummaryText())) {
    if (!options.contains(title)) defaults.insert(title, value);
  }
  return defaults;
}

bool differs(const QMap<QString, QString> &defaults, const SummaryLine &line) {
  const auto standard = defaults.find(line.title);
  return standard != defaults.end() && standard.value() != line.value;
}

}  // namespace

QList<SummaryLine> summaryLines(const PrintSession &session) {
  const QMap<QString, QString> defaults = defaultsOf(session);
  QStringList order;
  QMap<QString, QString> changed = changedOptions(session, &order);
  QList<SummaryLine> lines;
  for (const auto &[title, value] : session.panels().summary()) {
    SummaryLine line{title, value, changed.contains(title)};
    line.changed = line.changed || differs(defaults, line);
    changed.remove(title);
    lines << line;
  }
  for (const QString &title : order) {
    const auto entry = changed.find(title);
    if (entry != changed.end()) lines << SummaryLine{title, entry.value(), true};
  }
  lines << jobLines(session);
  std::stable_partition(lines.begin(), lines.end(),
                        [](const SummaryLine &line) { return line.changed; });
  return lines;
}

}  // namespace orvek
