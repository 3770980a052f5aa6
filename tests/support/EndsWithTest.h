// SPDX-License-Identifier: Apache-2.0
// Programs that a test starts and that would stay where the test itself is killed.
#pragma once

#include <sys/prctl.h>

#include <QProcess>
#include <csignal>

namespace orvek::test {

/// Has what `process` will start asked to end when the thread ends that starts it, however that
/// comes about.
inline void endWithTest(QProcess &process) {
  process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
}

}  // namespace orvek::test
