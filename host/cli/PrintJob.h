// SPDX-License-Identifier: Apache-2.0
// The one place where a session and a command line become a job.
#pragma once

#include "host/cli/CommandLine.h"
#include "host/jobs/JobRequest.h"
#include "host/session/PrintSession.h"

namespace orvek {

/// What the job is to be: the documents and wishes of the command line, the session's printer and
/// options.
JobRequest jobRequestFor(const CommandLine &line, PrintSession &session,
                         const std::shared_ptr<PasswordSource> &passwords = {});

/// Prints one job where the command line asks for it: into --output's file, whether or not --print
/// is there as well, else on the queue with --print. Waits until the job has been taken. Success
/// where it asks for neither; no document is touched then. `files` are the documents, or copies of
/// them where they have been read already.
Status printAsAsked(const CommandLine &line, PrintSession &session, const QStringList &files,
                    const std::shared_ptr<PasswordSource> &passwords);

}  // namespace orvek
