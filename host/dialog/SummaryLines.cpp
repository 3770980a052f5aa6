// SPDX-License-Identifier: Apache-2.0
// Merges the panels' summaries with the marks that no panel speaks of.

#include "host/dialog/SummaryLines.h"

#include <QCoreApplication>
#include <QSet>
#include <algorithm>

#include "host/ppd/Wording.h"
#include "host/session/CommonSettings.h"
#include "host/session/JobChoices.h"
#include "host/session/OrientationText.h"

namespace orvek {
namespace {

// What the marks that are not the PPD's own say, and a booklet's sides; by the titles that panels
// have for them, which are the PPD's.
QMap<QString, SummaryLine> changedOptions(const PrintSession &session, QStringList *order) {
  QMap<QString, SummaryLine> changed;
  const auto line = [](const PrinterDescription &printer, const OptionChoice &mark) {
    return SummaryLine{optionText(printer, mark.option), choiceText(printer, mark), true};
  };
  if (!session.origin().printer) return changed;
  const PrinterDescription &printer = *session.origin().printer;
  for (const OptionChoice &mark : session.marks().differingFromDefaults()) {
    if (printer.isEquipment(mark.option)) continue;
    const QString title = printer.option(mark.option).textInPpd();
    *order << title;
    changed.insert(title, line(printer, mark));
  }
  if (const auto sides = sidesOfBooklet(session)) {
    const QString title = printer.option(sides->option).textInPpd();
    if (!changed.contains(title)) *order << title;
    changed.insert(title, line(printer, *sides));
  }
  return changed;
}

/// The texts of this file, for translation.
struct Text {
  Q_DECLARE_TR_FUNCTIONS(orvek::SummaryLines)
};

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
  for (int place = 0; place < jobChoices; ++place) {
    const auto which = static_cast<JobChoice>(place);
    const auto choice = jobChoice(session, which);
    if (!choice || !isJobChoiceChanged(session, which)) continue;
    lines << SummaryLine{choice->title, currentText(*choice), true};
  }
  return lines;
}

// The titles of the options that panels took over: what of those changed, the marks say.
QSet<QString> optionTitles(const PrintSession &session) {
  QSet<QString> titles;
  if (!session.origin().printer) return titles;
  for (const QString &option : session.panels().claimedOptions()) {
    titles.insert(session.origin().printer->option(option).textInPpd());
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

// A panel speaks of an option in the PPD's words, which may be keywords, or in another language
// than the user's.
SummaryLine inBetterWords(const PrintSession &session, const SummaryLine &line) {
  if (!session.origin().printer) return line;
  const PrinterDescription &printer = *session.origin().printer;
  for (const QString &keyword : session.panels().claimedOptions()) {
    const PrinterOption option = printer.option(keyword);
    if (option.textInPpd() != line.title) continue;
    const auto choice = option.choice(session.marks().marked(keyword));
    const bool isChoice = choice && choice->textInPpd == line.value;
    return {option.text(), isChoice ? choice->text : line.value, line.changed};
  }
  return line;
}

bool differs(const QMap<QString, QString> &defaults, const SummaryLine &line) {
  const auto standard = defaults.find(line.title);
  return standard != defaults.end() && standard.value() != line.value;
}

}  // namespace

QList<SummaryLine> summaryLines(const PrintSession &session) {
  const QMap<QString, QString> defaults = defaultsOf(session);
  QStringList order;
  QMap<QString, SummaryLine> changed = changedOptions(session, &order);
  QList<SummaryLine> lines;
  for (const auto &[title, value] : session.panels().summary()) {
    SummaryLine line{title, value, changed.contains(title)};
    line.changed = line.changed || differs(defaults, line);
    changed.remove(title);
    lines << inBetterWords(session, line);
  }
  for (const QString &title : order) {
    const auto entry = changed.find(title);
    if (entry != changed.end()) lines << entry.value();
  }
  lines << jobLines(session);
  std::stable_partition(lines.begin(), lines.end(),
                        [](const SummaryLine &line) { return line.changed; });
  return lines;
}

}  // namespace orvek
