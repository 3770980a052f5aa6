// SPDX-License-Identifier: Apache-2.0
// orvek-print-server: answers questions about a print server over its standard input, a socket to
// the program that started it. A server that breaks libcups breaks this process, and nothing else.

#include <unistd.h>

#include <clocale>

#include "host/server/Confinement.h"
#include "host/server/CupsConnection.h"
#include "host/server/Destinations.h"
#include "host/server/PPDDownload.h"
#include "host/server/QueueJobs.h"
#include "host/server/QueueSettings.h"
#include "host/server/SendJob.h"
#include "platform/system/FileSizeLimit.h"

namespace {

using namespace orvek;

Result<QCborMap> answerTo(ServerTask task, const CupsConnection &connection, const Fields &fields) {
  switch (task) {
    case ServerTask::List:
      return listDestinations(connection);
    case ServerTask::Find:
      return findDestinationAsAsked(connection, fields);
    case ServerTask::Settings:
      return readSettingsAsAsked(connection, fields);
    case ServerTask::Description:
      return downloadPPDAsAsked(connection, fields);
    case ServerTask::Send:
      return sendJobAsAsked(connection, fields);
    case ServerTask::IsStopped:
      return isJobStoppedAsAsked(connection, fields);
    case ServerTask::HasMarkedJob:
      return hasMarkedJobAsAsked(connection, fields);
    case ServerTask::Cancel:
      return cancelJobAsAsked(connection, fields);
    case ServerTask::Open:
      break;
  }
  return Failure{FailureKind::Io, connection.serverName(), unreadableAnswer()};
}

/// The first question.
ServerWish wishIn(Fields fields, const QCborMap &map) {
  ServerWish wish{fields.text("server"), fields.text("user"),
                  std::chrono::milliseconds(fields.number("patience"))};
  const QCborValue left = map.value(QLatin1String("left"));
  wish.isLeft = left.isMap();
  if (wish.isLeft) wish.password = ProgramLink::passwordIn(Fields(left));
  return wish;
}

void answerAll(const CupsConnection &connection, ProgramLink &link, bool isLeft) {
  while (true) {
    const Message question = link.next();
    // Of a document whose job has failed.
    if (question.kind != MessageKind::Question) continue;
    Fields fields = Fields::of(question.bytes);
    const auto task = static_cast<ServerTask>(fields.number("task"));
    const auto answer = answerTo(task, connection, fields);
    link.say(answer ? messageOf(MessageKind::Answer, answer.value())
                    : failedMessage(answer.failure()));
    if (isLeft) return;
  }
}

}  // namespace

int main() {
  stayWithinBounds();
  outliveFileSizeLimits();
  std::setlocale(LC_ALL, "");
  ProgramLink link(STDIN_FILENO);
  const Message first = link.next();
  const QCborMap map = QCborValue::fromCbor(first.bytes).toMap();
  const ServerWish wish = wishIn(Fields(map), map);
  if (wish.isLeft) {
    endSoon();
  } else {
    endWithThread();
  }
  endWithProgram(STDIN_FILENO);
  const auto connection = CupsConnection::open(wish, link);
  if (!connection) {
    link.say(failedMessage(connection.failure()));
    return 0;
  }
  if (!wish.isLeft) link.say(messageOf(MessageKind::Answer, {}));
  answerAll(*connection.value(), link, wish.isLeft);
  return 0;
}
