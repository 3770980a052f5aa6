// SPDX-License-Identifier: Apache-2.0
// One field of a job's settings changed, the others as they are.
#pragma once

#include "host/session/PrintSession.h"

namespace orvek {

/// Calls `change` with the session's settings and has it take what comes of that.
template <typename Change>
void changeJob(PrintSession &session, const Change &change) {
  JobSettings job = session.job().settings();
  change(&job);
  session.job().setSettings(job);
}

}  // namespace orvek
