// SPDX-License-Identifier: Apache-2.0
// What happens when a job is cancelled: CUPS sends its filters SIGTERM.
#pragma once

#include <sys/types.h>

namespace orvek::driver {

/// From here on a cancelled job ends the driver: at once while it works itself, after the filters
/// that it has started have ended while it waits for them. Its file with a name goes in either
/// case.
void watchForCancel();

/// Whether the job was cancelled while filters were running.
bool isCancelled();

/// The one file that a cancelled job removes; the text must outlive the job. Null: none.
void removeWhenCancelled(const char *path);

/// Filters that a cancelled job ends, each the leader of a process group. At most a handful run at
/// a time.
void addRunningFilter(pid_t process);
void removeRunningFilter(pid_t process);

}  // namespace orvek::driver
