// SPDX-License-Identifier: Apache-2.0
// A run with a window: session, actions, the dialog, then what was asked for.
#pragma once

#include "host/cli/CommandLine.h"
#include "host/dialog/DialogSetup.h"
#include "host/session/PrintSession.h"
#include "platform/system/Result.h"

namespace orvek {

/// What the window is told of command line and session; both must outlive the window.
DialogSetup dialogSetupFor(const CommandLine &line, PrintSession &session,
                           const std::shared_ptr<PasswordSource> &passwords = {});

/// Runs the whole command line with a window, until the user closes it. A job that the user decided
/// against is no failure.
Status runWindow(const CommandLine &line);

}  // namespace orvek
