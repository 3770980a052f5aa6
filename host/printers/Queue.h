// SPDX-License-Identifier: Apache-2.0
// A queue as people see it: name, state in words, saved options. Plain data.
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

namespace orvek {

/// Where a job goes, as a command line names it. Plain data.
struct Destination {
  QString queue;
  /// Null: the queue itself.
  QString instance;
};

/// Reads "NAME" or "NAME/INSTANCE". A null text gives null parts.
Destination destinationFrom(const QString &text);

enum class PrinterState { Unknown, Idle, Printing, Stopped };

/// One destination: a queue of the server, or a queue with a named set of saved options (an
/// instance). Plain data.
struct Queue {
  QString name;
  /// Null: the queue itself.
  QString instance;
  /// What its administrator calls it; often what people know it by.
  QString info;
  /// Null where it has none.
  QString location;
  /// Null where the server does not know.
  QString makeAndModel;
  /// Null where the server does not tell.
  QString deviceUri;
  PrinterState state = PrinterState::Unknown;
  /// Why it is in that state, in words; empty: nothing to report.
  QStringList reasons;
  /// What was said of it last; null: nothing, or it was found by its name and lacks no filter.
  QString stateMessage;
  bool acceptsJobs = true;
  bool isDefault = false;
  /// The queue's and the user's options, as libcups gives them.
  QMap<QString, QString> options;

  /// "NAME" or "NAME/INSTANCE", as on a command line.
  QString destination() const;
};

/// Whether this one of a queue's options says what the queue is ("printer-info", "device-uri"), and
/// nothing of how a job is printed.
bool describesQueue(const QString &option);

/// "Idle", "Printing", "Stopped"; with "takes no jobs" where that is so.
QString stateInWords(const Queue &queue);

/// A reason keyword of RFC 8011 ("toner-low-warning") in words ("Toner is low"); a keyword that is
/// not known gives its own words ("vendor-oddity" is "Vendor oddity"), "none" a null string.
QString reasonInWords(const QString &keyword);

}  // namespace orvek
