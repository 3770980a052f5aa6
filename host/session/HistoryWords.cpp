// SPDX-License-Identifier: Apache-2.0
// Options by the names of the PPD, the booklet and the job's settings by ours.

#include "host/session/HistoryWords.h"

#include <QCoreApplication>

#include "host/ppd/Wording.h"
#include "host/session/JobChoices.h"
#include "host/session/OrientationText.h"
#include "host/session/PrintSession.h"
#include "host/ticket/BookletSettings.h"
#include "host/ticket/JobOptionNames.h"
#include "imposition/SheetOptions.h"
#include "platform/plugin/BookletKeys.h"

namespace orvek {
namespace {

constexpr int mostNamed = 3;

/// The texts of this file, for translation.
struct Text {
  Q_DECLARE_TR_FUNCTIONS(orvek::History)
};

QString setTo(const QString &title, const QString &value) {
  return value.isEmpty() ? title : Text::tr("%1: %2").arg(title, value);
}

QString flag(bool isOn) {
  return isOn ? Text::tr("On") : Text::tr("Off");
}

// Marking one option can take the mark of another, its twin; that one says nothing.
QStringList wordsOf(const QStringList &options, const PrintSession &session) {
  const PrinterDescription &printer = session.marks().printer();
  QStringList words;
  for (const QString &option : options) {
    const QString marked = session.marks().marked(option);
    if (marked.isNull()) continue;
    words << setTo(optionText(printer, option), choiceText(printer, {option, marked}));
  }
  words.removeDuplicates();
  return words;
}

// What is recorded without another mark is said where there is nothing else to say.
QStringList optionWords(const PrintSession &session, const SessionState &before,
                        const SessionState &now, const QString &first) {
  QStringList options = session.marks().differingFrom(before.marks);
  if (options.removeAll(first) > 0) options.prepend(first);
  const QStringList words = wordsOf(options, session);
  if (!words.isEmpty()) return words;
  QStringList keys = differingKeys(before.ticket, now.ticket);
  keys.removeIf([&](const QString &key) { return !session.marks().printer().has(key); });
  return wordsOf(keys, session);
}

QString paperWords(const PrintSession &session) {
  const QString paper = session.job().sheetPaper();
  const PrinterDescription &printer = session.marks().printer();
  return paper.isNull() ? Text::tr("As the job")
                        : choiceText(printer, {QLatin1String(imposition::sheetPaperOption), paper});
}

QStringList bookletWords(const PrintSession &session, const SessionState &before,
                         const SessionState &now) {
  const imposition::BookletKeys then = bookletSettings(before.ticket);
  const imposition::BookletKeys set = bookletSettings(now.ticket);
  QStringList words;
  const auto add = [&words](bool differs, const QString &title, const QString &value) {
    if (differs) words << setTo(title, value);
  };
  const auto points = [](int number) { return Text::tr("%1 pt").arg(number); };
  add(then.enabled != set.enabled, Text::tr("Booklet"), flag(set.enabled));
  add(then.rightToLeft != set.rightToLeft, Text::tr("Right to left"), flag(set.rightToLeft));
  add(then.pageBorders != set.pageBorders, Text::tr("Page borders"), flag(set.pageBorders));
  add(then.gutter != set.gutter, Text::tr("Gutter"), points(set.gutter));
  add(then.creep != set.creep, Text::tr("Creep"), points(set.creep));
  add(then.targetPaper != set.targetPaper, Text::tr("Target paper size"), paperWords(session));
  return words;
}

QString rangeWords(const JobSettings &job) {
  if (!job.pageRangesProblem.isNull()) return {};
  return job.pageRanges.isNull() ? Text::tr("All") : job.pageRanges;
}

QStringList jobWords(const PrintSession &session, const SessionState &before,
                     const SessionState &now) {
  const JobSettings &then = before.job;
  const JobSettings &set = now.job;
  QStringList words;
  const auto add = [&words](bool differs, const QString &title, const QString &value) {
    if (differs) words << setTo(title, value);
  };
  const bool rangesDiffer =
      then.pageRanges != set.pageRanges || then.pageRangesProblem != set.pageRangesProblem;
  add(then.copies != set.copies, Text::tr("Copies"), QString::number(set.copies));
  const bool isMark = session.marks().printer().has(collateOption);
  add(!isMark && then.collate != set.collate, Text::tr("Collate"), flag(set.collate));
  add(rangesDiffer, Text::tr("Pages"), rangeWords(set));
  add(then.reverse != set.reverse, Text::tr("Last page first"), flag(set.reverse));
  add(then.orientation != set.orientation, Text::tr("Orientation"),
      orientationText(set.orientation));
  const int pages = session.job().pagesPerSheet();
  add(before.ticket.value(layoutNUpKey) != now.ticket.value(layoutNUpKey),
      Text::tr("Pages per sheet"), QString::number(pages > 1 ? pages : 1));
  const QStringList keys = differingKeys(before.ticket, now.ticket);
  for (int place = 0; place < jobChoices; ++place) {
    const auto which = static_cast<JobChoice>(place);
    const bool differs = std::any_of(keys.begin(), keys.end(), [which](const QString &key) {
      return jobChoiceOf(key) == which;
    });
    const auto choice = differs ? jobChoice(session, which) : std::nullopt;
    if (choice) words << setTo(choice->title, currentText(*choice));
  }
  return words;
}

// Keys that only their panel knows are called as it calls them.
QStringList otherWords(const PrintSession &session, const SessionState &before,
                       const SessionState &now) {
  QStringList words;
  for (const QString &key : differingKeys(before.ticket, now.ticket)) {
    const bool isBooklets = bookletEntry({key, QString()}).has_value();
    if (isBooklets || key == layoutNUpKey || session.marks().printer().has(key)) continue;
    if (jobChoiceOf(key)) continue;
    words << setTo(key, now.ticket.value(key).toString());
  }
  return words;
}

}  // namespace

QStringList differingKeys(const TicketValues &one, const TicketValues &other) {
  QStringList keys;
  for (const QString &key : one.keys() + other.keys()) {
    const QVariant here = one.value(key);
    const QVariant there = other.value(key);
    const bool differs = here != there || here.metaType() != there.metaType();
    if (differs && !keys.contains(key)) keys << key;
  }
  return keys;
}

QString changeInWords(const PrintSession &session, const SessionState &before,
                      const SessionState &now, const QString &first) {
  QStringList words = optionWords(session, before, now, first);
  words << bookletWords(session, before, now) << jobWords(session, before, now);
  if (words.isEmpty()) words << otherWords(session, before, now);
  if (words.isEmpty()) return Text::tr("Other settings");
  const int further = static_cast<int>(words.size()) - mostNamed;
  QStringList named = words.mid(0, mostNamed);
  if (further > 0) named << Text::tr("%n more", nullptr, further);
  return named.join(QStringLiteral("; "));
}

QString typedKey(const PrintSession &session, const SessionState &before, const SessionState &now) {
  if (!session.marks().differingFrom(before.marks).isEmpty()) return {};
  const QStringList keys = differingKeys(before.ticket, now.ticket);
  if (before.job == now.job) {
    const bool isTyped = keys == QStringList(gutterKey) || keys == QStringList(creepKey);
    return isTyped ? keys.constFirst() : QString();
  }
  if (!keys.isEmpty()) return {};
  JobSettings otherCopies = before.job;
  otherCopies.copies = now.job.copies;
  if (otherCopies == now.job) return copiesOption;
  JobSettings otherRanges = before.job;
  otherRanges.pageRanges = now.job.pageRanges;
  otherRanges.pageRangesProblem = now.job.pageRangesProblem;
  return otherRanges == now.job ? QString(pageRangesOption) : QString();
}

}  // namespace orvek
