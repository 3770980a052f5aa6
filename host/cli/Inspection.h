// SPDX-License-Identifier: Apache-2.0
// The state of a session as one JSON object, for those who script the dialog. Reads, changes
// nothing.
#pragma once

#include <QJsonObject>

#include "host/session/PrintSession.h"

namespace orvek {

/// The session's first panel and the session itself; without a panel, null and empty what is the
/// panel's.
QJsonObject inspect(PrintSession &session);

}  // namespace orvek
