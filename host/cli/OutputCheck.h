// SPDX-License-Identifier: Apache-2.0
// That what a run writes is none of the files that it reads.
#pragma once

#include "host/cli/CommandLine.h"

namespace orvek {

/// Fails where a file that the command line has written is one that it has read, by whatever name
/// or stream: it would be lost. A ticket and a preset may be written back under their own names.
/// Opens nothing.
Status checkOutputs(const CommandLine &line);

}  // namespace orvek
