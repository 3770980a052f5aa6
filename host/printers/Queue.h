// SPDX-License-Identifier: Apache-2.0
// A queue as people see it: name, state in words, saved options. Plain data.
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

namespace orvek {

enum class PrinterState { Unknown, Idle, Printing, Stopped };

/// One destination: a queue of the server, or a queue with a named set of saved options (an
/// instance).
struct Queue {
  QString name;
  QString instance;      ///< null: the queue itself
  QString info;          ///< what its administrator calls it; often what people know it by
  QString location;      ///< null where it has none
  QString makeAndModel;  ///< null where the server does not know
  QString deviceUri;     ///< null where the server does not tell
  PrinterState state = PrinterState::Unknown;
  QStringList reasons;   ///< why it is in that state, in words; empty: nothing to report
  QString stateMessage;  ///< what was said of it last; null: nothing, or not listed
  bool acceptsJobs = true;
  bool isDefault = false;
  QMap<QString, QString> options;  ///< the queue's and the user's options, as libcups gives them

  /// "NAME" or "NAME/INSTANCE", as on a command line.
  QString destination() const;
};

/// "Idle", "Printing", "Stopped"; with "takes no jobs" where that is so.
QString stateInWords(const Queue &queue);

/// A reason keyword of RFC 8011 ("toner-low-warning") in words ("Toner is low"); a keyword that is
/// not known gives its own words ("vendor-oddity" is "Vendor oddity"), "none" a null string.
QString reasonInWords(const QString &keyword);

}  // namespace orvek
