// SPDX-License-Identifier: Apache-2.0
// From a command line to a running session: printer, ticket, marks, options, plug-ins, panels.
#pragma once

#include <atomic>
#include <list>
#include <memory>

#include "host/cli/CommandLine.h"
#include "host/panels/PluginLoader.h"
#include "host/presets/AppliedPreset.h"
#include "host/printers/Passwords.h"
#include "host/session/PrintSession.h"
#include "platform/ui/InterfaceResource.h"

namespace orvek {

/// The printer of the command line's session, and what is saved for it: asks the print server, or
/// reads the PPD. May run on a thread of its own; ends soon after `cancelled` (null: never) was
/// set. `passwords` answers a print server that wants one; null: nobody does.
Result<SessionSetup> gatherSetup(const CommandLine &line,
                                 const std::shared_ptr<PasswordSource> &passwords = {},
                                 const std::atomic<bool> *cancelled = nullptr);

/// The installed plug-ins, or those that the command line names, and their panels' controls: loaded
/// while a print server is asked, before there is a session. For the interface's thread.
class PanelsAhead {
 public:
  explicit PanelsAhead(const CommandLine &line);

  /// Fails where one that the command line names can't be loaded.
  const Result<PluginHarvest> &plugins() const { return m_plugins; }

 private:
  Result<PluginHarvest> m_plugins;
  std::list<InterfaceAhead> m_interfaces;
};

/// Begins a session with that and with the command line's wishes: reads its ticket, takes its marks
/// and options. Opens the panels. Installed plug-ins that are broken are reported and left out; one
/// that the command line names is a failure. `applied`: as for applyPresetAsAsked() (Presets.h).
Result<std::unique_ptr<PrintSession>> startSession(const CommandLine &line,
                                                   const SessionSetup &setup,
                                                   const PanelsAhead &panels,
                                                   AppliedPreset *applied = nullptr);
Result<std::unique_ptr<PrintSession>> startSession(const CommandLine &line,
                                                   const SessionSetup &setup);

/// Has the print server asked for the command line's printer, for whoever gathers or starts a
/// session within a moment.
void askAhead(const CommandLine &line);

/// All of these.
Result<std::unique_ptr<PrintSession>> startSession(
    const CommandLine &line, const std::shared_ptr<PasswordSource> &passwords = {});

}  // namespace orvek
