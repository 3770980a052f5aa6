// SPDX-License-Identifier: Apache-2.0
// Reads the queue's description and state.

#include "host/jobs/ServerDriver.h"

#include <cups/cups.h>

#include <QRegularExpression>
#include <array>

#include "host/jobs/BookletDriver.h"
#include "platform/system/OptionMap.h"

namespace orvek {
namespace {

const QString missingFilter = QStringLiteral("cups-missing-filter");
const QString untrustedFilter = QStringLiteral("cups-insecure-filter");

/// No filter of the server has a part in documents of these formats.
constexpr std::array deviceFormats{CUPS_FORMAT_RAW, "application/vnd.cups-postscript"};

bool isDeviceReady(const QMap<QString, QString> &options) {
  const auto format = valueNamed(options, u"document-format");
  for (const char *ready : deviceFormats) {
    if (format == QLatin1String(ready)) return true;
  }
  return valueNamed(options, u"raw").has_value();
}

bool lacksAFilter(const QueueState &state) {
  return state.reasons.contains(missingFilter) || state.reasons.contains(untrustedFilter);
}

// A message that names no file at all says nothing against it.
bool namesAnotherFilter(const QString &message) {
  static const QRegularExpression file(QStringLiteral("/([^/\"“”„«»]+)[\"“”«»]"));
  const QRegularExpressionMatch found = file.match(message);
  return found.hasMatch() && found.captured(1).trimmed() != bookletDriverName();
}

}  // namespace

Phrase lackOfDriver(ServerDriver driver) {
  switch (driver) {
    case ServerDriver::MakesNoBooklets:
      return Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "the server's driver can't make booklets"));
    case ServerDriver::StopsEveryJob:
      return Phrase(QT_TRANSLATE_NOOP("orvek::Failure",
                                      "the server lacks the printer's driver and stops every job"));
    case ServerDriver::Works:
      break;
  }
  return {};
}

bool dependsOnServerDriver(const QMap<QString, QString> &options, const QueueState &state) {
  return !isDeviceReady(options) && (lacksAFilter(state) || asksForBooklet(options));
}

bool mayHaveForgotten(const QMap<QString, QString> &options, const QueueState &state,
                      const QString &queuePPD) {
  if (queuePPD.isNull() || isDeviceReady(options) || lacksAFilter(state)) return false;
  return driverNamedIn(queuePPD) == NamedDriver::Ours;
}

ServerDriver serverDriverFor(const QMap<QString, QString> &options, const QueueState &state,
                             const QString &queuePPD) {
  if (queuePPD.isNull() || !dependsOnServerDriver(options, state)) return ServerDriver::Works;
  const bool lacksOurs = lacksAFilter(state) && !namesAnotherFilter(state.message);
  switch (driverNamedIn(queuePPD)) {
    case NamedDriver::Ours:
      return lacksOurs ? ServerDriver::StopsEveryJob : ServerDriver::Works;
    case NamedDriver::NoneForBooklets:
      return asksForBooklet(options) ? ServerDriver::MakesNoBooklets : ServerDriver::Works;
    case NamedDriver::Other:
      break;
  }
  return ServerDriver::Works;
}

}  // namespace orvek
