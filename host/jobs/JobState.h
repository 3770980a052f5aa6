// SPDX-License-Identifier: Apache-2.0
// What has become of a job that was sent.
#pragma once

#include <cups/http.h>

namespace orvek {

/// Whether the server that `http` is connected to has stopped the job, which it does at once where
/// it can't run the job's filters. False where it does not tell.
bool isStoppedByServer(http_t *http, int jobId);

}  // namespace orvek
