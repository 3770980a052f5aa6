// SPDX-License-Identifier: Apache-2.0
// The preset options of the command line: begin with one, save, list, delete.
#pragma once

#include "host/cli/CommandLine.h"
#include "host/session/PrintSession.h"

namespace orvek {

/// Puts --preset's preset into the session and tells what of it the printer can't take. What
/// --ticket brought stays. Success where none was asked for.
Status applyPresetAsAsked(const CommandLine &line, PrintSession &session);

/// Saves the session under --save-preset's name. Success where none was asked for.
Status savePresetAsAsked(const CommandLine &line, PrintSession &session);

/// Prints the presets' names, one a line; damaged ones are reported.
Status listPresets();

Status deletePreset(const QString &name);

}  // namespace orvek
