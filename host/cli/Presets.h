// SPDX-License-Identifier: Apache-2.0
// The preset options of the command line: begin with one, save, list, delete.
#pragma once

#include "host/cli/CommandLine.h"
#include "host/presets/AppliedPreset.h"
#include "host/session/PrintSession.h"

namespace orvek {

/// Puts --preset's preset into the session and tells what of it the printer can't take. What
/// --ticket brought stays. Success where none was asked for.
///
/// `applied` (null: a run without a window) is told of it. There, a session on a queue begins with
/// what was used last on that, unless a preset, ticket or marks say what to begin with, or the user
/// wants nothing remembered; where that can't be read, nothing happens.
Status applyPresetAsAsked(const CommandLine &line, PrintSession &session,
                          AppliedPreset *applied = nullptr);

/// Saves the session under --save-preset's name. Success where none was asked for.
Status savePresetAsAsked(const CommandLine &line, PrintSession &session);

/// Prints the presets' names, one a line; damaged ones are reported.
Status listPresets();

Status deletePreset(const QString &name);

}  // namespace orvek
