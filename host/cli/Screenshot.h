// SPDX-License-Identifier: Apache-2.0
// A picture of the dialog in a file.
#pragma once

#include "host/cli/CommandLine.h"
#include "host/session/PrintSession.h"

namespace orvek {

/// Writes the window as it would be shown into --screenshot's file, as a PNG; the file is replaced
/// as a whole or left as it was.
Status writeScreenshot(const CommandLine &line, PrintSession &session);

}  // namespace orvek
