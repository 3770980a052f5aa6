// SPDX-License-Identifier: Apache-2.0
// What a job's options say of the sides that the standard filters make, and of which of them are
// printed. All who ask read it here: preview, dialog, and who looks at a job's document.
#pragma once

#include "imposition/FilterLayout.h"
#include "imposition/StandardOptions.h"

namespace orvek::imposition {

/// Reads "number-up", "number-up-layout", "booklet", "booklet-signature", "position" and
/// "page-set"; what the filters don't know counts as not said. Page ranges are left alone: users
/// write them in more ways than one.
void readSideOptions(const ValueOf &valueOf, FilterJob *job);

/// Whether the filters would take this for true, as CUPS' options have it.
bool isOn(const std::string &value);

}  // namespace orvek::imposition
