// SPDX-License-Identifier: Apache-2.0
// What a printing session needs to know of a queue.
#pragma once

#include "host/printers/ServerAccess.h"
#include "host/session/SessionSetup.h"

namespace orvek {

/// Blocks while it asks the server; may be called on any thread. Fills in the printer, the options
/// saved for the queue and its user, and the destination. `destination` is "NAME" or
/// "NAME/INSTANCE"; empty, it is the default. A queue without PPD gives a setup without printer,
/// with what the queue offers over IPP. The rest of the setup stays. Fails where there is no such
/// queue or no server that answers, and where the queue's PPD is invalid.
///
/// `jobsToo`: also asks what the queue takes of a job whatever its printer, for those who show
/// that.
Status setUpForQueue(const ServerAccess &access, const QString &destination, SessionSetup *setup,
                     bool jobsToo = false);

}  // namespace orvek
