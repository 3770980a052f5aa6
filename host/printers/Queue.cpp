// SPDX-License-Identifier: Apache-2.0
// States and reasons in words.

#include "host/printers/Queue.h"

#include <QCoreApplication>

namespace orvek {
namespace {

/// The words of this file, for translation.
struct Text {
  Q_DECLARE_TR_FUNCTIONS(orvek::Queue)
};

/// Keywords of RFC 8011 and of CUPS that people meet, without their severity.
const QMap<QString, QString> &knownReasons() {
  static const QMap<QString, QString> reasons{
      {QStringLiteral("connecting-to-device"), Text::tr("Connecting to the printer")},
      {QStringLiteral("cover-open"), Text::tr("A cover is open")},
      {QStringLiteral("cups-insecure-filter"),
       Text::tr("The printer's filter can be changed by others and is not run")},
      {QStringLiteral("cups-missing-filter"), Text::tr("The printer's filter is missing")},
      {QStringLiteral("door-open"), Text::tr("A door is open")},
      {QStringLiteral("input-tray-missing"), Text::tr("A paper tray is missing")},
      {QStringLiteral("marker-supply-empty"), Text::tr("Toner or ink is empty")},
      {QStringLiteral("marker-supply-low"), Text::tr("Toner or ink is low")},
      {QStringLiteral("marker-waste-almost-full"), Text::tr("The waste container is almost full")},
      {QStringLiteral("marker-waste-full"), Text::tr("The waste container is full")},
      {QStringLiteral("media-empty"), Text::tr("Out of paper")},
      {QStringLiteral("media-jam"), Text::tr("Paper jam")},
      {QStringLiteral("media-low"), Text::tr("Paper is low")},
      {QStringLiteral("media-needed"), Text::tr("Paper has to be put in")},
      {QStringLiteral("moving-to-paused"), Text::tr("Stopping")},
      {QStringLiteral("offline"), Text::tr("The printer is offline")},
      {QStringLiteral("other"), Text::tr("The printer reports a problem")},
      {QStringLiteral("output-area-almost-full"), Text::tr("The output tray is almost full")},
      {QStringLiteral("output-area-full"), Text::tr("The output tray is full")},
      {QStringLiteral("output-tray-missing"), Text::tr("The output tray is missing")},
      {QStringLiteral("paused"), Text::tr("Paused")},
      {QStringLiteral("shutdown"), Text::tr("The printer is switched off")},
      {QStringLiteral("spool-area-full"), Text::tr("The printer's memory is full")},
      {QStringLiteral("stopped-partly"), Text::tr("Part of the printer is stopped")},
      {QStringLiteral("stopping"), Text::tr("Stopping")},
      {QStringLiteral("timed-out"), Text::tr("The printer does not answer")},
      {QStringLiteral("toner-empty"), Text::tr("Toner is empty")},
      {QStringLiteral("toner-low"), Text::tr("Toner is low")},
  };
  return reasons;
}

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

QString Queue::destination() const {
  return instance.isNull() ? name : name + u'/' + instance;
}

QString reasonInWords(const QString &keyword) {
  if (keyword == QStringLiteral("none")) return {};
  const QString plain = withoutSeverity(keyword);
  return knownReasons().value(plain, wordsOf(plain));
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
