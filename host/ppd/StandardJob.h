// SPDX-License-Identifier: Apache-2.0
// The tables behind host/ppd/StandardNames for what a job says whatever its printer.
#pragma once

#include "host/ppd/StandardWords.h"

namespace orvek {

/// Values of "page-set", "print-scaling", "number-up-layout", "job-sheets", "job-hold-until" and
/// "job-priority". For any thread; nothing fails.
StandardWords pageSets();
StandardWords pageScalings();
StandardWords pageLayouts();
StandardWords banners();
StandardWords holdTimes();
StandardWords priorities();

}  // namespace orvek
