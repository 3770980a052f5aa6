// SPDX-License-Identifier: Apache-2.0
// Common settings of a queue without a PPD, as its printer states them over IPP.
#pragma once

#include "host/printers/SettingOffer.h"
#include "host/server/CupsConnection.h"

namespace orvek {

/// The answer to the question for a queue's settings: the printer's, where the server knows little
/// of them and hands jobs on. Fails where the server does not answer or has no such queue.
Result<QCborMap> readSettingsAsAsked(const CupsConnection &connection, Fields fields);

}  // namespace orvek
