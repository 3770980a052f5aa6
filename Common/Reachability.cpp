// SPDX-License-Identifier: Apache-2.0
// Whether a printer answers at all.

#include <QUrl>

#include "Common/SimplePing.h"
#include "Common/Utilities.h"

bool PrinterIsReachable(const QUrl &printer) {
  constexpr int requests = 1;
  constexpr int limitMilliseconds = 200;
  constexpr unsigned int stopAfterFirstReceive = 1;
  // An international name in the form that name servers know, which is plain ASCII.
  const QByteArray host = printer.host(QUrl::FullyEncoded).toLatin1();
  if (host.isEmpty()) return false;
  return SimplePing(host.constData(), requests, limitMilliseconds, stopAfterFirstReceive) == 0;
}
