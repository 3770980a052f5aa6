// SPDX-License-Identifier: Apache-2.0
// From a command line to a running session: printer, ticket, marks, options, plug-ins, panels.
#pragma once

#include <atomic>
#include <memory>

#include "host/cli/CommandLine.h"
#include "host/printers/Passwords.h"
#include "host/session/PrintSession.h"

namespace orvek {

/// What the command line's session begins with: asks the print server, reads PPD and ticket. May
/// run on a thread of its own; ends soon after `cancelled` (null: never) was set. `passwords`
/// answers a print server that wants one; null: nobody does.
Result<SessionSetup> gatherSetup(const CommandLine &line,
                                 const std::shared_ptr<PasswordSource> &passwords = {},
                                 const std::atomic<bool> *cancelled = nullptr);

/// What the command line wishes of a session on whichever printer: its ticket and its marks.
Status addWishes(const CommandLine &line, SessionSetup *setup);

/// Begins a session with that and opens its panels. Installed plug-ins that are broken are reported
/// and left out; one that the command line names is a failure.
Result<std::unique_ptr<PrintSession>> startSession(const CommandLine &line,
                                                   const SessionSetup &setup);

/// Both, one after the other.
Result<std::unique_ptr<PrintSession>> startSession(
    const CommandLine &line, const std::shared_ptr<PasswordSource> &passwords = {});

}  // namespace orvek
