// SPDX-License-Identifier: Apache-2.0
// What the program says on its two standard streams.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include "platform/system/Result.h"

namespace orvek {

/// Writes to the standard output, all of it or a failure. For what is ours to the last byte, such
/// as JSON; what holds texts of others goes through writeLines() or writeRows().
Status writeToStandardOutput(const QByteArray &bytes);

/// The same, of so many lines. Whatever the texts hold, each becomes one line and moves no cursor.
Status writeLines(const QStringList &lines);

/// The same, of lines made of fields with a tab between two; a field holds no tab.
Status writeRows(const QList<QStringList> &rows);

/// Reports a failure as exactly one line on the standard error and gives the exit status it stands
/// for.
int report(const Failure &failure);

/// Tells something that is no error, a line of its own.
void tell(const QString &sentence);

}  // namespace orvek
