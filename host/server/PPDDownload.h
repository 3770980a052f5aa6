// SPDX-License-Identifier: Apache-2.0
// Gets a PPD file over a connection that is open. libcups' own call for that connects to other
// hosts without any limit on the wait, so this asks in its place.
#pragma once

#include "host/server/CupsConnection.h"

namespace orvek {

/// A server's answer. Plain data.
struct PPDAnswer {
  /// OK; NOT_MODIFIED; NOT_FOUND; why not.
  http_status_t status = HTTP_STATUS_ERROR;
  /// Where OK.
  QByteArray ppd;
  /// Where OK: when it was changed last.
  time_t date = 0;
};

/// The PPD of `queue`, or of a class' first printer that has one, unless it has not changed since
/// `date` (0: in any case). Waits as the connection's limits have it, and gives passwords as it
/// does.
PPDAnswer downloadPPD(http_t *http, const QString &queue, time_t date);

/// The answer to the question for a queue's description, which goes before it where it is new.
/// Fails where the server gives none, though it has one.
Result<QCborMap> downloadPPDAsAsked(const CupsConnection &connection, Fields fields);

}  // namespace orvek
