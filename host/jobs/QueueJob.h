// SPDX-License-Identifier: Apache-2.0
// Prints to a queue of a CUPS server.
#pragma once

#include "host/jobs/JobRequest.h"
#include "host/printers/ServerAccess.h"
#include "platform/system/Result.h"

namespace orvek {

/// Sends the request's documents as one job to `request.queue` (empty: the default printer) on
/// `request.server`. The options saved for the queue or instance go with it where the request does
/// not set them. Blocks; for a window run it through BackgroundJob. Documents are sent block by
/// block, so memory does not grow with them. What is cancelled, or fails half-way, is cancelled on
/// the server.
///
/// Where the server lacks the driver that the job needs, its sheets are made here and sent finished
/// (FinishedSheets.h), or, where the request does not allow that, nothing is sent: the outcome says
/// so.
///
/// Failures: a document can't be read, standard input is empty, no server or one that hangs, no
/// such queue, what the server refuses (in its words), cancelled.
Result<JobOutcome> submitToQueue(const JobRequest &request, JobControl &control);

/// Has the server asked what a job to this queue will depend on, while the program has other things
/// to do: for whoever sends one with the same access within a moment. `queuePPD` is the path of the
/// queue's own description, null where it has none. Asks over a connection that has stayed open,
/// waits for no answer, and tells of no failure.
void askAheadForJob(const ServerAccess &access, const QString &queue, const QString &queuePPD);

/// "request id is QUEUE-ID (N file(s))", as lp says it; standard input alone counts as no file.
QString requestIdLine(const JobRequest &request, const JobOutcome &outcome);

/// Cancels a job, whatever has become of the program that sent it.
Status cancelJob(const ServerAccess &access, const QString &queue, int jobId);

}  // namespace orvek
