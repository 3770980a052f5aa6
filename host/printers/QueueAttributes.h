// SPDX-License-Identifier: Apache-2.0
// Common settings of a queue without a PPD, as its printer states them over IPP.
#pragma once

#include <QList>

#include "host/printers/ServerTalk.h"
#include "host/printers/SettingOffer.h"

namespace orvek {

/// Paper, sides, color, quality, pages per sheet, output tray and finishings of `queue`, in this
/// order, as far as it has a choice in them. Fails where the server does not answer or has no such
/// queue.
Result<QList<SettingOffer>> readQueueSettings(const ServerAccess &access, const QString &queue);

/// The same over a connection that is open already.
Result<QList<SettingOffer>> readQueueSettings(ServerTalk &talk, const QString &queue);

/// What the server does with jobs on `queue` whatever their printer, and `queue` takes: banner
/// pages and times to begin. Fails likewise.
Result<QList<SettingOffer>> readJobSettings(ServerTalk &talk, const QString &queue);

}  // namespace orvek
