// SPDX-License-Identifier: Apache-2.0
// What a queue's jobs tell about its server.
#pragma once

#include "host/server/CupsConnection.h"

namespace orvek {

/// Whether the queue's last job has the attribute that the fields name, or one that is still to
/// come has it; no older than an hour, as people mend their servers. False where the server does
/// not tell, and nobody is asked for a password for that.
Result<QCborMap> hasMarkedJobAsAsked(const CupsConnection &connection, Fields fields);

}  // namespace orvek
