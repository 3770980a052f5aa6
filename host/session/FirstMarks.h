// SPDX-License-Identifier: Apache-2.0
// The marks that a session begins with: the PPD's defaults, what is saved for the queue, the
// ticket, and marks given beside them. What conflicts among them is settled before any panel sees
// it, by the rule for a user's picks.
#pragma once

#include <QList>

#include "host/ppd/Constraints.h"
#include "host/ppd/Marks.h"
#include "host/session/SessionSetup.h"
#include "platform/printing/PrintSettings.h"
#include "platform/system/Result.h"

namespace orvek {

/// Marks what the setup asks for: of an option's choices the ticket's before the queue's, and a
/// given mark before both. `ticket` holds the setup's ticket.
///
/// Where such choices conflict, each is picked in turn, equipment first, then the queue's, then the
/// ticket's. A choice of the queue never displaces a given mark; one of the ticket does, as it
/// would when a panel restores it; neither displaces given equipment. What gave way to the ticket
/// is recorded there. A choice that can't be kept leaves the ticket, and its option is as it would
/// be without it. Gives what happened, for the user to be told; nothing where nothing conflicts,
/// and then marks and ticket are just what was asked for.
///
/// A given mark that the PPD lacks is a Usage failure. Moves the marks; keeps nothing.
Result<QList<Resolution>> markFirst(Marks &marks, Ticket &ticket, const SessionSetup &setup);

/// The options with, behind them, what their words ("sides") stand for by the PPD's own names,
/// where those are not named themselves.
QList<OptionChoice> withMeanings(Marks &marks, QList<OptionChoice> options);

}  // namespace orvek
