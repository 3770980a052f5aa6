// SPDX-License-Identifier: Apache-2.0
// A job on files that stand for its documents: whoever prints it never hears of the documents, and
// whoever asked for it never of the files.
#pragma once

#include "host/jobs/JobRequest.h"
#include "platform/system/Result.h"

namespace orvek {

/// A job, and the files that DocumentFiles gave for its documents, one for each. Plain data.
struct ReadJob {
  JobRequest request;
  QStringList files;

  /// The job on those files, under its own title.
  JobRequest onFiles() const;

  /// A failure of one of the files said of the document that it stands for; any other as it is.
  Failure named(Failure failure) const;
};

}  // namespace orvek
