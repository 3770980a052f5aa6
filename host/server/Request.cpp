// SPDX-License-Identifier: Apache-2.0
// Looks at an answer's number as well as at its status.

#include "host/server/Request.h"

namespace orvek {

bool isGoodAnswer(const CupsConnection &connection, ipp_t *answer, int requestId) {
  return answer != nullptr && !connection.isBroken() && ippGetRequestId(answer) == requestId &&
         ippGetStatusCode(answer) <= IPP_STATUS_OK_EVENTS_COMPLETE;
}

Failure badAnswer(const CupsConnection &connection, ipp_t *answer, int requestId,
                  const Phrase &what) {
  const bool isOther = answer != nullptr && ippGetRequestId(answer) != requestId;
  if (isOther && !connection.isBroken()) return {FailureKind::Io, what, unreadableAnswer()};
  return connection.lastFailure(what);
}

Result<IppHandle> answerTo(const CupsConnection &connection, ipp_t *request, const char *path,
                           const Phrase &what) {
  const int requestId = ippGetRequestId(request);
  IppHandle answer(cupsDoRequest(connection.http(), request, path));
  if (isGoodAnswer(connection, answer.get(), requestId)) return answer;
  return badAnswer(connection, answer.get(), requestId, what);
}

}  // namespace orvek
