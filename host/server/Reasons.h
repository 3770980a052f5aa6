// SPDX-License-Identifier: Apache-2.0
// Why a print server did not do what it was asked for, in words.
#pragma once

#include <cups/cups.h>

#include "platform/system/Phrase.h"

namespace orvek {

/// Why no connection came about, after so many milliseconds: asks the system once more, as libcups
/// does not keep its answer.
Phrase whyNobodyAnswers(const char *host, int port, qint64 milliseconds);

/// Of a connection with this error of the system.
Phrase whyItBroke(int error);

/// Of libcups' last call, whose connection is whole.
Phrase whyRefused(http_t *http);

}  // namespace orvek
