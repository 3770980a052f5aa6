// SPDX-License-Identifier: Apache-2.0
// The program's texts in the user's language.
#pragma once

namespace orvek {

/// From now on tr() gives texts in the user's language, as far as there are any; English else. The
/// toolkit's own texts too, where its translations are installed. Windows run from right to left
/// where that language does. Needs the application object.
void installTranslations();

}  // namespace orvek
