// SPDX-License-Identifier: Apache-2.0
// A run without window: session, actions, then what was asked for; and the steps of it that a run
// with a window shares.
#pragma once

#include <optional>

#include "host/cli/CommandLine.h"
#include "host/session/PrintSession.h"

namespace orvek {

/// Carries out --do, up to the first action that is refused.
Status runActions(const CommandLine &line, PrintSession &session);

/// The job's documents, for those who look at them. Plain data.
struct SeenDocuments {
  /// By names that can be read more than once; none: nothing is known of them.
  QStringList files;
  /// That they can't be looked at is no failure any more.
  bool arePrinted = false;
  /// Why one that comes once could not be read.
  std::optional<Failure> unread = {};
};

/// Has the panels save, then writes --ticket-out and --screenshot.
Status saveAndWrite(const CommandLine &line, PrintSession &session, const SeenDocuments &documents);

/// Prints --inspect and --summary on the standard output. Fails, having printed them, where a
/// document of the preview could not be read, unless it is printed all the same.
Status printState(const CommandLine &line, PrintSession &session, const SeenDocuments &documents);

/// Runs the whole command line without a window. Nothing is printed or written where an action is
/// refused.
Status runHeadless(const CommandLine &line);

}  // namespace orvek
