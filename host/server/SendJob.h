// SPDX-License-Identifier: Apache-2.0
// A job's way to its queue, and what becomes of it there.
#pragma once

#include "host/server/CupsConnection.h"

namespace orvek {

/// Makes the job that the fields describe, tells its number, and wants its documents one by one: a
/// document again from its beginning where the server asks for a password only once it has come.
Result<QCborMap> sendJobAsAsked(const CupsConnection &connection, Fields fields);

/// Whether the server has stopped the job that the fields name; false where it does not tell.
Result<QCborMap> isJobStoppedAsAsked(const CupsConnection &connection, Fields fields);

/// Cancels the job that the fields name.
Result<QCborMap> cancelJobAsAsked(const CupsConnection &connection, Fields fields);

}  // namespace orvek
