// SPDX-License-Identifier: Apache-2.0
// Failures in the user's language, for a window. The command line says them in English.
#pragma once

#include <QString>

#include "platform/system/Result.h"

namespace orvek {

/// The phrase in the language of installTranslations(): its sentence translated, its parts too.
/// English where there is no translation; names and the words of a server stay as they are.
QString translated(const Phrase &phrase);

/// "WHAT: WHY" in that language.
QString failureText(const Failure &failure);

}  // namespace orvek
