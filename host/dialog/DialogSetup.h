// SPDX-License-Identifier: Apache-2.0
// What the window is told when it is made. Needs no widgets.
#pragma once

#include <QString>
#include <QStringList>
#include <atomic>
#include <functional>
#include <memory>

#include "host/jobs/DocumentInfo.h"
#include "host/jobs/JobRequest.h"
#include "host/presets/AppliedPreset.h"
#include "host/presets/PresetStore.h"
#include "host/presets/RecentPrinters.h"
#include "host/printers/ServerAccess.h"
#include "host/session/PrintSession.h"
#include "platform/system/Result.h"

namespace orvek {

/// What a window is made for, besides the session. Plain data, but that it shares the presets;
/// its functions are called on the interface's thread where nothing else is said.
struct DialogSetup {
  /// Gives what a session on another printer begins with. Is called on a thread of its own, and
  /// ends soon after `cancelled` was set.
  using AskPrinter = std::function<Result<SessionSetup>(const QString &destinationOrPath,
                                                        const std::atomic<bool> &cancelled)>;

  /// Begins a session with what was asked for, its panels open.
  using BeginSession = std::function<Result<std::unique_ptr<PrintSession>>(const SessionSetup &)>;

  /// The job's documents; none: the user has yet to choose them.
  QStringList files;
  /// What they are called for people.
  QString documentName;
  /// What is known of an only one; more may come.
  DocumentInfo document;
  /// "NAME/INSTANCE" of the session's queue; empty: into a file.
  QString destination;
  /// Where a job goes that goes to no queue; null: Print asks for a file.
  QString outputFile;
  ServerAccess server;

  /// The job as the session has it. What is printed and where it goes is the window's business.
  /// Empty: a request that says nothing.
  std::function<JobRequest(PrintSession &)> jobRequest;

  /// Asks for the printer that the window is made for, where that is still to come: the session is
  /// one without a printer until then. Empty: the session has it.
  AskPrinter askFirst;
  /// What that printer is called so far.
  QString firstPrinter;
  /// Asks for a queue.
  AskPrinter askPrinter;
  /// Reads the PPD file of this path.
  AskPrinter readDescription;

  BeginSession beginSession;

  /// What of presets is in the session's settings; is filled when the session is there. Null:
  /// nothing.
  std::shared_ptr<const AppliedPreset> applied;

  /// Null: no presets.
  std::shared_ptr<PresetStore> presets;

  /// Null: nobody remembers which printers were used.
  std::shared_ptr<RecentPrinters> recent;
};

}  // namespace orvek
