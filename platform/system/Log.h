// SPDX-License-Identifier: Apache-2.0
// The general log call: lines go to the system log and, with time and process, to standard error.
#pragma once

#include <QString>
#include <functional>

namespace orvek {

/// Writes one line to the system log and to standard error. `line` is taken as it stands: no
/// conversion is expanded. A line feed that ends the text is not doubled on standard error.
void logLine(const QString &line);

/// Hears every line given to logLine(), as it was given, before it is written. One listener at a
/// time; an empty one ends it. For tests and for showing what a session logged.
void setLogListener(std::function<void(const QString &line)> listener);

}  // namespace orvek
