// SPDX-License-Identifier: Apache-2.0
// The request that opens a job.
#pragma once

#include "host/printers/CupsOptions.h"
#include "host/server/CupsConnection.h"

namespace orvek {

/// A job without its documents. Plain data, but that it borrows the options.
struct JobSheet {
  QString queue;
  /// The queue's address on its server, as that gives it.
  QString address;
  QString title;
  const CupsOptions &options;
  /// Options whose value is text even in braces: libcups takes one for a collection, and a print
  /// server hands no collection on to the driver that reads it.
  QStringList texts;
};

/// Opens a job (RFC 8011, Create-Job) and gives its number. The queue's server must be the one of
/// the connection. Fails with what the server says.
Result<int> createJob(const CupsConnection &connection, const JobSheet &sheet);

}  // namespace orvek
