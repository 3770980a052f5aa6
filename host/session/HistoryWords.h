// SPDX-License-Identifier: Apache-2.0
// What lies between two states of a session, in words. Reads only; pure functions in the language
// of the thread's application.
#pragma once

#include <QString>
#include <QStringList>

#include "host/session/History.h"

namespace orvek {

/// The keys that have other values, or other types of them, here and there.
QStringList differingKeys(const TicketValues &one, const TicketValues &other);

/// What `now`, which must be how the session is, has other than `before`: "Folding: Saddle fold;
/// Stapling: Off". The option `first` is named first; of many only some are named.
QString changeInWords(const PrintSession &session, const SessionState &before,
                      const SessionState &now, const QString &first);

/// The number or text in which alone the two differ, by a name of its own; null where they differ
/// in something else, or in more.
QString typedKey(const PrintSession &session, const SessionState &before, const SessionState &now);

}  // namespace orvek
