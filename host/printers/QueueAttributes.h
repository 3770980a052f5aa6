// SPDX-License-Identifier: Apache-2.0
// Common settings of a queue without a PPD, as its printer states them over IPP.
#pragma once

#include <QList>

#include "host/printers/CupsConnection.h"

namespace orvek {

/// One value of a setting.
struct SettingChoice {
  QString keyword;  ///< as a job says it: "two-sided-long-edge"
  QString title;    ///< as people read it; the keyword where nothing better is known
};

/// One setting that a job may state.
struct QueueSetting {
  QString keyword;  ///< the job attribute: "sides"
  QString title;
  QList<SettingChoice> choices;
  QString defaultChoice;  ///< a keyword among the choices; null where the printer states none
};

/// Paper, sides, color, quality, pages per sheet, output tray and finishings of `queue`, in this
/// order, as far as it has a choice in them. Fails where the server does not answer or has no such
/// queue.
Result<QList<QueueSetting>> readQueueSettings(const ServerAccess &access, const QString &queue);

}  // namespace orvek
