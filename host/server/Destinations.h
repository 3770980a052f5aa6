// SPDX-License-Identifier: Apache-2.0
// Which printers there are, and which is the default, as libcups has it.
#pragma once

#include <QMap>

#include "host/server/CupsConnection.h"

namespace orvek {

/// Whether the last answer of libcups is one at all: it gives no queue for a server that refuses,
/// too.
bool serverAnswered(const CupsConnection &connection);

/// The server's own queue of a name or its default, with the saved options. A value.
struct FoundQueue {
  QString name;
  /// Null: the queue itself.
  QString instance;
  bool isDefault = false;
  QMap<QString, QString> options;
};

/// "NAME" or "NAME/INSTANCE"; empty: the default. Fails where there is none.
Result<FoundQueue> findDestination(const CupsConnection &connection, const QString &wanted);

/// The answers to the questions for all of them, and for one.
Result<QCborMap> listDestinations(const CupsConnection &connection);
Result<QCborMap> findDestinationAsAsked(const CupsConnection &connection, Fields fields);

}  // namespace orvek
