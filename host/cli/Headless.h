// SPDX-License-Identifier: Apache-2.0
// A run without window: session, actions, then what was asked for; and the steps of it that a run
// with a window shares.
#pragma once

#include "host/cli/CommandLine.h"
#include "host/session/PrintSession.h"

namespace orvek {

/// Carries out --do, up to the first action that is refused.
Status runActions(const CommandLine &line, PrintSession &session);

/// Has the panels save, then writes --ticket-out and --screenshot.
Status saveAndWrite(const CommandLine &line, PrintSession &session);

/// Prints --inspect and --summary on the standard output.
Status printState(const CommandLine &line, PrintSession &session);

/// Runs the whole command line without a window. Nothing is printed or written where an action is
/// refused.
Status runHeadless(const CommandLine &line);

}  // namespace orvek
