// SPDX-License-Identifier: Apache-2.0
// A named set of choices, and its JSON form.
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

#include "host/ticket/TicketFile.h"
#include "platform/system/Result.h"

namespace orvek {

/// What a user saved under a name. Plain data.
struct Preset {
  QString name;
  /// The printer it was made with; for messages.
  QString printerModel;
  /// PPD keyword to choice keyword.
  QMap<QString, QString> options;
  /// Ticket key to text or integer.
  TicketValues ticket;
  /// Option's keyword to what that printer calls it; for messages, and not written anywhere.
  QMap<QString, QString> titles = {};
};

/// The preset as a JSON object: "name", "printer", "options", "ticket".
QByteArray presetToJson(const Preset &preset);

/// Reads one back. `where` names the file in failures, which are Invalid and say which part is
/// wrong. Parts that are absent are empty; parts that this version does not know are passed over.
Result<Preset> presetFromJson(const QByteArray &json, const QString &where);

}  // namespace orvek
