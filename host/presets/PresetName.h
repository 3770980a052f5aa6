// SPDX-License-Identifier: Apache-2.0
// Names that users give, and the files that stand for them.
#pragma once

#include <QString>

#include "platform/system/Result.h"

namespace orvek {

/// Whether a name will do: any text but an empty one, or one with line breaks or other control
/// characters, which no list of names could show. Failures are of the kind Usage.
Status checkPresetName(const QString &name);

/// The same for a name that is to be given: those that a list of presets has for itself, "None" and
/// "Last used", would stand in it twice.
Status checkNewPresetName(const QString &name);

/// Why a name that the list of presets has for itself won't do.
Failure takenPresetName(const QString &name);

/// The file name for a name. Different names give different files; slashes, dots and everything
/// else that means something to a file system is spelled out, so a name never leads out of its
/// folder. Long names are cut and told apart by a digest.
QString presetFileName(const QString &name);

}  // namespace orvek
