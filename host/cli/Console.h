// SPDX-License-Identifier: Apache-2.0
// What the program says on its two standard streams.
#pragma once

#include <QByteArray>
#include <QString>

#include "platform/system/Result.h"

namespace orvek {

/// Writes to the standard output, all of it or a failure.
Status writeToStandardOutput(const QByteArray &bytes);

/// Reports a failure as exactly one line on the standard error and gives the exit status it stands
/// for.
int report(const Failure &failure);

/// Tells something that is no error, a line of its own.
void tell(const QString &sentence);

}  // namespace orvek
