// SPDX-License-Identifier: Apache-2.0
// Keeps a ticket within what the dialog itself would let anybody ask for.
#pragma once

#include <QStringList>

#include "host/ppd/PrinterDescription.h"
#include "platform/printing/PrintSettings.h"

namespace orvek {

/// Takes a number of copies in the ticket back to 1 at least and maximumCopies (JobSettings.h) at
/// most, and says so in one sentence, without a full stop. Nothing where the number is within, is
/// none, or is an option of the printer's own.
QStringList boundCopies(Ticket &ticket, const PrinterDescription &printer);

}  // namespace orvek
