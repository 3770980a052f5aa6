// SPDX-License-Identifier: Apache-2.0
// A picture of the dialog in a file.
#pragma once

#include "host/cli/CommandLine.h"
#include "host/session/PrintSession.h"

namespace orvek {

/// Writes the window as it would be shown with `document` into --screenshot's file, as a PNG; the
/// file is replaced as a whole or left as it was. `document` can be read more than once; null:
/// there is none, or not only one.
Status writeScreenshot(const CommandLine &line, PrintSession &session, const QString &document);

}  // namespace orvek
