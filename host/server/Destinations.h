// SPDX-License-Identifier: Apache-2.0
// Which printers there are, and which is the default, as libcups has it.
#pragma once

#include "host/server/CupsConnection.h"

namespace orvek {

/// The answer to the question for all of the server's queues, each with its saved options.
Result<QCborMap> listDestinations(const CupsConnection &connection);

/// The answer to the question for one of them, "NAME" or "NAME/INSTANCE"; empty: the default. Fails
/// where there is none.
Result<QCborMap> findDestinationAsAsked(const CupsConnection &connection, Fields fields);

}  // namespace orvek
