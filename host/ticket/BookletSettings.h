// SPDX-License-Identifier: Apache-2.0
// The booklet as a ticket describes it. A pure function, over values only.
#pragma once

#include "host/ticket/TicketFile.h"
#include "imposition/BookletOptions.h"

namespace orvek {

/// The keys as the driver will read them from the job. What the ticket lacks has its default.
imposition::BookletKeys bookletSettings(const TicketValues &ticket);

}  // namespace orvek
