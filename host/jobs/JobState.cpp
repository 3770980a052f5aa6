// SPDX-License-Identifier: Apache-2.0
// Asks for one answer each.

#include "host/jobs/JobState.h"

namespace orvek {

bool isStoppedByServer(ServerTalk &talk, int jobId) {
  auto answer = talk.ask(ServerTask::IsStopped, {{QLatin1String("job"), jobId}});
  return answer && answer.value().flag("stopped");
}

bool hasMarkedJob(ServerTalk &talk, const QString &queue, const QString &option) {
  auto answer = talk.ask(ServerTask::HasMarkedJob, {{QLatin1String("queue"), fieldOf(queue)},
                                                    {QLatin1String("mark"), fieldOf(option)}});
  return answer && answer.value().flag("marked");
}

}  // namespace orvek
