// SPDX-License-Identifier: Apache-2.0
// How far a job is, for people.
#pragma once

#include <QString>

#include "host/jobs/JobRequest.h"

namespace orvek {

/// "Printing: page 3", "Printing document 2 of 3: 1.2 MB"; what is known of the progress in words.
QString progressInWords(const JobProgress &progress);

/// 0 to 100, or -1 where nobody knows. `pages`: how many the document has, 0 for unknown.
int percentDone(const JobProgress &progress, int pages);

}  // namespace orvek
