// SPDX-License-Identifier: Apache-2.0
// From a command line to a running session: printer, ticket, marks, options, plug-ins, panels.
#pragma once

#include <memory>

#include "host/cli/CommandLine.h"
#include "host/session/PrintSession.h"

namespace orvek {

/// Begins the session that the command line describes and opens its panels. Installed plug-ins that
/// are broken are reported and left out; one that the command line names is a failure.
Result<std::unique_ptr<PrintSession>> startSession(const CommandLine &line);

}  // namespace orvek
