// SPDX-License-Identifier: Apache-2.0
// Names of what is done to printed sheets: a part of host/ppd/StandardWords. What can be done in
// several places of a sheet is named by its kind; a kind without a keyword is the option's own.
#pragma once

#include "host/ppd/StandardWords.h"

namespace orvek {

StandardWords staplings();
StandardWords placedStaples();
StandardWords placedHoles();
StandardWords folds();

/// By the keywords of IPP; folds beside them.
StandardWords finishings();
StandardWords placedFinishings();

StandardWords placedBindings();
StandardWords cuts();

}  // namespace orvek
