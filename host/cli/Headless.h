// SPDX-License-Identifier: Apache-2.0
// A run without window: session, actions, then what was asked for.
#pragma once

#include "host/cli/CommandLine.h"
#include "host/session/PrintSession.h"

namespace orvek {

/// Runs the whole command line without a window. Nothing is printed or written where an action is
/// refused.
Status runHeadless(const CommandLine &line);

}  // namespace orvek
