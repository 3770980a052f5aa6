// SPDX-License-Identifier: Apache-2.0
// From a command line to a running session: printer, ticket, marks, options, plug-ins, panels.
#pragma once

#include <atomic>
#include <memory>

#include "host/cli/CommandLine.h"
#include "host/printers/Passwords.h"
#include "host/session/PrintSession.h"

namespace orvek {

/// The printer of the command line's session, and what is saved for it: asks the print server, or
/// reads the PPD. May run on a thread of its own; ends soon after `cancelled` (null: never) was
/// set. `passwords` answers a print server that wants one; null: nobody does.
Result<SessionSetup> gatherSetup(const CommandLine &line,
                                 const std::shared_ptr<PasswordSource> &passwords = {},
                                 const std::atomic<bool> *cancelled = nullptr);

/// Begins a session with that and with the command line's wishes: reads its ticket, takes its marks
/// and options. Opens the panels. Installed plug-ins that are broken are reported and left out; one
/// that the command line names is a failure.
Result<std::unique_ptr<PrintSession>> startSession(const CommandLine &line,
                                                   const SessionSetup &setup);

/// Both, one after the other.
Result<std::unique_ptr<PrintSession>> startSession(
    const CommandLine &line, const std::shared_ptr<PasswordSource> &passwords = {});

}  // namespace orvek
