// SPDX-License-Identifier: Apache-2.0
// Gets a PPD file over a connection that is open. libcups' own call for that connects to other
// hosts without any limit on the wait, so this asks in its place.
#pragma once

#include "host/server/CupsConnection.h"

namespace orvek {

/// The answer to the question for the description of a queue, or of a class' first printer that has
/// one, which goes before it where it has changed since the date in the fields (0: in any case).
/// Fails where the server gives none, though it has one.
Result<QCborMap> downloadPPDAsAsked(const CupsConnection &connection, Fields fields);

}  // namespace orvek
