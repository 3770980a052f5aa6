// SPDX-License-Identifier: Apache-2.0
// The booklet as a ticket describes it. Pure functions, over values only.
#pragma once

#include <optional>

#include "host/ppd/Keyword.h"
#include "host/ticket/TicketFile.h"
#include "imposition/BookletOptions.h"

namespace orvek {

/// The keys as the driver will read them from the job. What the ticket lacks has its default.
imposition::BookletKeys bookletSettings(const TicketValues &ticket);

/// A print server's option as a ticket for panels has it, where it is one of the booklet's keys in
/// letters of either case: the key in its own spelling; of a flag trueValue or falseValue, as the
/// driver will read it; a number as it was written. Nothing for any other option.
std::optional<OptionChoice> bookletEntry(const OptionChoice &option);

}  // namespace orvek
