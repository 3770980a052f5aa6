// SPDX-License-Identifier: Apache-2.0
// Asks for one answer.

#include "host/jobs/JobState.h"

namespace orvek {

bool isStoppedByServer(ServerTalk &talk, int jobId) {
  auto answer = talk.ask(ServerTask::IsStopped, {{QLatin1String("job"), jobId}});
  return answer && answer.value().flag("stopped");
}

}  // namespace orvek
