// SPDX-License-Identifier: Apache-2.0
// Whether a print server has the driver that makes booklets.
#pragma once

#include <QMap>
#include <QString>

#include "platform/system/Phrase.h"

namespace orvek {

/// What becomes of a job on its server.
enum class ServerDriver {
  /// It prints as it should, as far as the driver goes.
  Works,
  /// The queue's printer description does not name the driver: the server passes over what asks for
  /// a booklet and prints the pages one by one.
  MakesNoBooklets,
  /// The description names a driver that the server does not have: it stops every job that needs
  /// filters, booklet or not.
  StopsEveryJob
};

/// What becomes of a job with these options on a queue. `stateReasons` are the queue's
/// printer-state-reasons as the server gives them. `queuePPD` is the path of the queue's own
/// description, null where it has none, or where it could not be had: then nothing is known against
/// the driver. A printer whose description names another maker's filters is theirs to drive; a job
/// that no filter touches is the user's own affair.
ServerDriver serverDriverFor(const QMap<QString, QString> &options, const QString &stateReasons,
                             const QString &queuePPD);

/// What is to be said of it, as the reason of a failure is; empty where it works.
Phrase lackOfDriver(ServerDriver driver);

/// Whether that may be anything but Works for a job with these options, so that the queue's
/// description is worth being asked for.
bool dependsOnServerDriver(const QMap<QString, QString> &options, const QString &stateReasons);

}  // namespace orvek
