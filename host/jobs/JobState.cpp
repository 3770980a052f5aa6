// SPDX-License-Identifier: Apache-2.0
// Asks for one answer each.

#include "host/jobs/JobState.h"

namespace orvek {
namespace {

QCborMap fieldsOf(const QString &queue, const QString &option) {
  return {{QLatin1String("queue"), fieldOf(queue)}, {QLatin1String("mark"), fieldOf(option)}};
}

}  // namespace

bool isStoppedByServer(ServerTalk &talk, int jobId) {
  auto answer = talk.ask(ServerTask::IsStopped, {{QLatin1String("job"), jobId}});
  return answer && answer.value().flag("stopped");
}

void askAheadForMarkedJob(ServerTalk &talk, const QString &queue, const QString &option) {
  talk.askAhead(ServerTask::HasMarkedJob, fieldsOf(queue, option));
}

bool hasMarkedJob(ServerTalk &talk, const QString &queue, const QString &option) {
  auto answer = talk.ask(ServerTask::HasMarkedJob, fieldsOf(queue, option));
  return answer && answer.value().flag("marked");
}

}  // namespace orvek
