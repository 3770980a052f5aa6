// SPDX-License-Identifier: Apache-2.0
// What has become of a job that was sent.
#pragma once

#include "host/printers/ServerTalk.h"

namespace orvek {

/// Whether the server has stopped the job, which it does at once where it can't run the job's
/// filters. False where it does not tell.
bool isStoppedByServer(ServerTalk &talk, int jobId);

/// Has the next asked while the program has other things to do; see ServerTalk::askAhead.
void askAheadForMarkedJob(ServerTalk &talk, const QString &queue, const QString &option);

/// Whether the last job that the queue was sent, within an hour, was told this option.
bool hasMarkedJob(ServerTalk &talk, const QString &queue, const QString &option);

}  // namespace orvek
