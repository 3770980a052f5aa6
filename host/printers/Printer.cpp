// SPDX-License-Identifier: Apache-2.0
// States and reasons in words.

#include "host/printers/Printer.h"

namespace orvek {
namespace {

/// Keywords of RFC 8011 and of CUPS that people meet, without their severity.
const QMap<QString, QString> &knownReasons() {
  static const QMap<QString, QString> reasons{
      {QStringLiteral("connecting-to-device"), QStringLiteral("Connecting to the printer")},
      {QStringLiteral("cover-open"), QStringLiteral("A cover is open")},
      {QStringLiteral("cups-insecure-filter"),
       QStringLiteral("The printer's filter can be changed by others and is not run")},
      {QStringLiteral("cups-missing-filter"), QStringLiteral("The printer's filter is missing")},
      {QStringLiteral("door-open"), QStringLiteral("A door is open")},
      {QStringLiteral("input-tray-missing"), QStringLiteral("A paper tray is missing")},
      {QStringLiteral("marker-supply-empty"), QStringLiteral("Toner or ink is empty")},
      {QStringLiteral("marker-supply-low"), QStringLiteral("Toner or ink is low")},
      {QStringLiteral("marker-waste-almost-full"),
       QStringLiteral("The waste container is almost full")},
      {QStringLiteral("marker-waste-full"), QStringLiteral("The waste container is full")},
      {QStringLiteral("media-empty"), QStringLiteral("Out of paper")},
      {QStringLiteral("media-jam"), QStringLiteral("Paper jam")},
      {QStringLiteral("media-low"), QStringLiteral("Paper is low")},
      {QStringLiteral("media-needed"), QStringLiteral("Paper has to be put in")},
      {QStringLiteral("moving-to-paused"), QStringLiteral("Stopping")},
      {QStringLiteral("offline"), QStringLiteral("The printer is offline")},
      {QStringLiteral("other"), QStringLiteral("The printer reports a problem")},
      {QStringLiteral("output-area-almost-full"), QStringLiteral("The output tray is almost full")},
      {QStringLiteral("output-area-full"), QStringLiteral("The output tray is full")},
      {QStringLiteral("output-tray-missing"), QStringLiteral("The output tray is missing")},
      {QStringLiteral("paused"), QStringLiteral("Paused")},
      {QStringLiteral("shutdown"), QStringLiteral("The printer is switched off")},
      {QStringLiteral("spool-area-full"), QStringLiteral("The printer's memory is full")},
      {QStringLiteral("stopped-partly"), QStringLiteral("Part of the printer is stopped")},
      {QStringLiteral("stopping"), QStringLiteral("Stopping")},
      {QStringLiteral("timed-out"), QStringLiteral("The printer does not answer")},
      {QStringLiteral("toner-empty"), QStringLiteral("Toner is empty")},
      {QStringLiteral("toner-low"), QStringLiteral("Toner is low")},
  };
  return reasons;
}

QString withoutSeverity(QString keyword) {
  for (const auto &severity :
       {QStringLiteral("-error"), QStringLiteral("-warning"), QStringLiteral("-report")})
    if (keyword.endsWith(severity)) keyword.chop(severity.size());
  return keyword;
}

QString wordsOf(QString keyword) {
  keyword.replace(u'-', u' ');
  return keyword.isEmpty() ? QString() : keyword.at(0).toUpper() + keyword.mid(1);
}

}  // namespace

QString Printer::destination() const {
  return instance.isNull() ? name : name + u'/' + instance;
}

QString reasonInWords(const QString &keyword) {
  if (keyword == QStringLiteral("none")) return {};
  const QString plain = withoutSeverity(keyword);
  return knownReasons().value(plain, wordsOf(plain));
}

QString stateInWords(const Printer &printer) {
  QString words;
  switch (printer.state) {
    case PrinterState::Idle:
      words = QStringLiteral("Idle");
      break;
    case PrinterState::Printing:
      words = QStringLiteral("Printing");
      break;
    case PrinterState::Stopped:
      words = QStringLiteral("Stopped");
      break;
    case PrinterState::Unknown:
      words = QStringLiteral("State unknown");
      break;
  }
  return printer.acceptsJobs ? words : QString(words + QStringLiteral(", takes no jobs"));
}

}  // namespace orvek
