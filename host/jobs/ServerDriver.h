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

/// What a server says of a queue. Plain data.
struct QueueState {
  /// printer-state-reasons as the server gives them.
  QString reasons;
  /// printer-state-message, which names the filter that is missing; null: not known.
  QString message;
};

/// What becomes of a job with these options on a queue. `queuePPD` is the path of the queue's own
/// description, null where it has none, or where it could not be had: then nothing is known against
/// the driver. A printer whose description names another maker's filters is theirs to drive, and a
/// filter of theirs, or of the server's own, that is missing beside the driver is not ours to
/// replace; a job that no filter touches is the user's own affair.
ServerDriver serverDriverFor(const QMap<QString, QString> &options, const QueueState &state,
                             const QString &queuePPD);

/// Whether the server may stop a job with these options though the queue's state says nothing of
/// it: with every job that needs no filter it forgets that it lacks one, and remembers it with the
/// next that does.
bool mayHaveForgotten(const QMap<QString, QString> &options, const QueueState &state,
                      const QString &queuePPD);

/// What is to be said of it, as the reason of a failure is; empty where it works.
Phrase lackOfDriver(ServerDriver driver);

/// Whether that may be anything but Works for a job with these options, so that the queue's
/// description is worth being asked for.
bool dependsOnServerDriver(const QMap<QString, QString> &options, const QueueState &state);

}  // namespace orvek
