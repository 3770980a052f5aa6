// SPDX-License-Identifier: Apache-2.0
// Requests of our own, and what counts as an answer to them.
#pragma once

#include <memory>

#include "host/server/CupsConnection.h"

namespace orvek {

/// Gives libcups' answers back. Owns nothing itself; for any thread, and nothing fails.
struct IppDeleter {
  void operator()(ipp_t *message) const { ippDelete(message); }
};

/// Given back with its holder.
using IppHandle = std::unique_ptr<ipp_t, IppDeleter>;

/// Whether `answer` (may be null) is one to the request with this number, and says that it went
/// well. libcups takes any well-formed message for the answer.
bool isGoodAnswer(const CupsConnection &connection, ipp_t *answer, int requestId);

/// Why it is none, in words; `what` is what was asked about.
Failure badAnswer(const CupsConnection &connection, ipp_t *answer, int requestId,
                  const Phrase &what);

/// Sends `request`, which it takes over, and gives a good answer, or fails in words.
Result<IppHandle> answerTo(const CupsConnection &connection, ipp_t *request, const char *path,
                           const Phrase &what);

}  // namespace orvek
