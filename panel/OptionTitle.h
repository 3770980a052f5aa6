// SPDX-License-Identifier: Apache-2.0
// What a control is called after a PPD option.
#pragma once

#include <QString>

#include "platform/printing/PPD.h"
#include "platform/system/TextDecoding.h"

namespace orvek {

/// The option's translation in the given encoding; its main keyword where the bytes are not valid
/// in it, so that no control is ever nameless. Null for an absent option.
QString CreateOptionTitle(const ppd_option_t *option, TextEncoding encoding = TextEncoding::UTF8);

}  // namespace orvek
