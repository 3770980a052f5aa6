// SPDX-License-Identifier: Apache-2.0
// Names of paper, and of where it comes from and goes to: a part of host/ppd/StandardWords.
#pragma once

#include "host/ppd/StandardWords.h"

namespace orvek {

/// What an option for paper and one for printed sheets both have.
StandardWords trays();

StandardWords paperSources();
StandardWords numberedPaperSources();
StandardWords outputTrays();
StandardWords numberedOutputTrays();
StandardWords paperTypes();

}  // namespace orvek
