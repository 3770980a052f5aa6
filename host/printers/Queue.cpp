// SPDX-License-Identifier: Apache-2.0
// States and reasons in words.

#include "host/printers/Queue.h"

#include <QCoreApplication>
#include <algorithm>
#include <iterator>

namespace orvek {
namespace {

/// The words of this file, for translation.
struct Text {
  Q_DECLARE_TR_FUNCTIONS(orvek::Queue)
};

constexpr QLatin1Char instanceMark('/');

struct KnownReason {
  QLatin1String keyword;
  const char *words;
};

/// Keywords of RFC 8011 and of CUPS that people meet, without their severity.
constexpr KnownReason knownReasons[] = {
    {QLatin1String("connecting-to-device"),
     QT_TRANSLATE_NOOP("orvek::Queue", "Connecting to the printer")},
    {QLatin1String("cover-open"), QT_TRANSLATE_NOOP("orvek::Queue", "A cover is open")},
    {QLatin1String("cups-insecure-filter"),
     QT_TRANSLATE_NOOP("orvek::Queue",
                       "The printer's filter can be changed by others and is not run")},
    {QLatin1String("cups-missing-filter"),
     QT_TRANSLATE_NOOP("orvek::Queue", "The printer's filter is missing")},
    {QLatin1String("door-open"), QT_TRANSLATE_NOOP("orvek::Queue", "A door is open")},
    {QLatin1String("input-tray-missing"),
     QT_TRANSLATE_NOOP("orvek::Queue", "A paper tray is missing")},
    {QLatin1String("marker-supply-empty"),
     QT_TRANSLATE_NOOP("orvek::Queue", "Toner or ink is empty")},
    {QLatin1String("marker-supply-low"), QT_TRANSLATE_NOOP("orvek::Queue", "Toner or ink is low")},
    {QLatin1String("marker-waste-almost-full"),
     QT_TRANSLATE_NOOP("orvek::Queue", "The waste container is almost full")},
    {QLatin1String("marker-waste-full"),
     QT_TRANSLATE_NOOP("orvek::Queue", "The waste container is full")},
    {QLatin1String("media-empty"), QT_TRANSLATE_NOOP("orvek::Queue", "Out of paper")},
    {QLatin1String("media-jam"), QT_TRANSLATE_NOOP("orvek::Queue", "Paper jam")},
    {QLatin1String("media-low"), QT_TRANSLATE_NOOP("orvek::Queue", "Paper is low")},
    {QLatin1String("media-needed"), QT_TRANSLATE_NOOP("orvek::Queue", "Paper has to be put in")},
    {QLatin1String("moving-to-paused"), QT_TRANSLATE_NOOP("orvek::Queue", "Stopping")},
    {QLatin1String("offline"), QT_TRANSLATE_NOOP("orvek::Queue", "The printer is offline")},
    {QLatin1String("other"), QT_TRANSLATE_NOOP("orvek::Queue", "The printer reports a problem")},
    {QLatin1String("output-area-almost-full"),
     QT_TRANSLATE_NOOP("orvek::Queue", "The output tray is almost full")},
    {QLatin1String("output-area-full"),
     QT_TRANSLATE_NOOP("orvek::Queue", "The output tray is full")},
    {QLatin1String("output-tray-missing"),
     QT_TRANSLATE_NOOP("orvek::Queue", "The output tray is missing")},
    {QLatin1String("paused"), QT_TRANSLATE_NOOP("orvek::Queue", "Paused")},
    {QLatin1String("shutdown"), QT_TRANSLATE_NOOP("orvek::Queue", "The printer is switched off")},
    {QLatin1String("spool-area-full"),
     QT_TRANSLATE_NOOP("orvek::Queue", "The printer's memory is full")},
    {QLatin1String("stopped-partly"),
     QT_TRANSLATE_NOOP("orvek::Queue", "Part of the printer is stopped")},
    {QLatin1String("stopping"), QT_TRANSLATE_NOOP("orvek::Queue", "Stopping")},
    {QLatin1String("timed-out"), QT_TRANSLATE_NOOP("orvek::Queue", "The printer does not answer")},
    {QLatin1String("toner-empty"), QT_TRANSLATE_NOOP("orvek::Queue", "Toner is empty")},
    {QLatin1String("toner-low"), QT_TRANSLATE_NOOP("orvek::Queue", "Toner is low")},
};

QString withoutSeverity(QString keyword) {
  for (const auto &severity :
       {QStringLiteral("-error"), QStringLiteral("-warning"), QStringLiteral("-report")}) {
    if (keyword.endsWith(severity)) keyword.chop(severity.size());
  }
  return keyword;
}

QString wordsOf(QString keyword) {
  keyword.replace(u'-', u' ');
  return keyword.isEmpty() ? QString() : keyword.at(0).toUpper() + keyword.mid(1);
}

}  // namespace

Destination destinationFrom(const QString &text) {
  const qsizetype slash = text.lastIndexOf(instanceMark);
  if (slash < 0) return {text, {}};
  return {text.left(slash), text.mid(slash + 1)};
}

QString Queue::destination() const {
  return instance.isNull() ? name : name + instanceMark + instance;
}

bool describesQueue(const QString &option) {
  if (option == QStringLiteral("printer-resolution")) return false;
  return option.startsWith(QStringLiteral("printer-")) ||
         option.startsWith(QStringLiteral("marker-")) || option == QStringLiteral("device-uri");
}

QString reasonInWords(const QString &keyword) {
  if (keyword == QStringLiteral("none")) return {};
  const QString plain = withoutSeverity(keyword);
  const auto *known =
      std::find_if(std::begin(knownReasons), std::end(knownReasons),
                   [&plain](const KnownReason &reason) { return reason.keyword == plain; });
  return known == std::end(knownReasons) ? wordsOf(plain) : Text::tr(known->words);
}

QString stateInWords(const Queue &queue) {
  QString words;
  switch (queue.state) {
    case PrinterState::Idle:
      words = Text::tr("Idle");
      break;
    case PrinterState::Printing:
      words = Text::tr("Printing");
      break;
    case PrinterState::Stopped:
      words = Text::tr("Stopped");
      break;
    case PrinterState::Unknown:
      words = Text::tr("State unknown");
      break;
  }
  return queue.acceptsJobs ? words : QString(words + Text::tr(", takes no jobs"));
}

}  // namespace orvek
