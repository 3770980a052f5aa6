// SPDX-License-Identifier: Apache-2.0
// The general log call: lines go to the system log and, with time and process, to standard error.
#pragma once

#include <QString>
#include <functional>
#include <memory>

namespace orvek {

/// Writes one line to the system log and to standard error. `line` is taken as it stands: no
/// conversion is expanded. A line feed that ends the text is not doubled on standard error.
/// May be called on any thread.
void logLine(const QString &line);

/// What hears a line of the log, as it was given.
using LogListener = std::function<void(const QString &line)>;

/// Hears every line given to logLine() while it lives, before the line is written. Any number may
/// listen at a time, the oldest first; each ends with its owner and leaves the others alone, and
/// may end while it is being called. The listener is called on the thread that logs. A subscription
/// that other threads log into must not end while they do.
class LogSubscription {
 public:
  /// An empty listener hears nothing.
  explicit LogSubscription(LogListener listener);
  LogSubscription(LogSubscription &&) = default;
  LogSubscription &operator=(LogSubscription &&) = default;

 private:
  /// The log itself keeps none alive.
  std::shared_ptr<const LogListener> m_listener;
};

/// One listener for a whole program, beside the subscriptions: a new one takes the place of the one
/// before, an empty one ends it. For tests and small programs.
void setLogListener(std::function<void(const QString &line)> listener);

}  // namespace orvek
