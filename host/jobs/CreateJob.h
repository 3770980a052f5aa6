// SPDX-License-Identifier: Apache-2.0
// The request that opens a job.
#pragma once

#include <QString>
#include <QStringList>

#include "host/jobs/CupsOptions.h"
#include "host/printers/Queue.h"

namespace orvek {

/// Opens a job without documents (RFC 8011, Create-Job) and gives its number; 0 where the server
/// makes none, libcups' last error says why then. The queue's server must be the one that `http`
/// is connected to. The values of the options named in `texts` go over as texts: libcups takes one
/// in braces for a collection, and a print server hands no collection on to the driver that reads
/// it.
int createJobOn(http_t *http, const Queue &queue, const QString &title, const CupsOptions &options,
                const QStringList &texts);

}  // namespace orvek
