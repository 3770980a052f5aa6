// SPDX-License-Identifier: Apache-2.0
// The request that opens a job.
#pragma once

#include <QString>

#include "host/jobs/CupsOptions.h"
#include "host/printers/Printer.h"

namespace orvek {

/// Opens a job without documents (RFC 8011, Create-Job) and gives its number; 0 where the server
/// makes none, libcups' last error says why then. The queue's server must be the one that `http`
/// is connected to.
int createJobOn(http_t *http, const Printer &printer, const QString &title,
                const CupsOptions &options);

}  // namespace orvek
