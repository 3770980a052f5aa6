// SPDX-License-Identifier: Apache-2.0
// Gathers what a session begins with.

#include "host/cli/SessionStart.h"

#include <future>

#include "host/cli/Console.h"
#include "host/cli/Presets.h"
#include "host/cli/PrinterListing.h"
#include "host/jobs/DocumentInfo.h"
#include "host/jobs/QueueJob.h"
#include "host/presets/SessionPreset.h"
#include "host/printers/PrinterList.h"
#include "host/printers/Queue.h"
#include "host/session/QueueSetup.h"
#include "host/ticket/BookletSettings.h"
#include "host/ticket/JobOptionNames.h"

namespace orvek {
namespace {

Status gatherPrinter(const CommandLine &line, const std::shared_ptr<PasswordSource> &passwords,
                     const std::atomic<bool> *cancelled, SessionSetup *setup) {
  if (line.ppd.isNull()) {
    ServerAccess access = serverAccess(line, passwords);
    access.cancelled = cancelled;
    // A job follows, and the same questions once more.
    access.staysOpen = line.headless && line.print && line.output.isNull();
    const Status set = setUpForQueue(access, line.destination, setup, !line.headless);
    if (set && access.staysOpen && setup->printer) {
      askAheadForJob(access, destinationFrom(setup->destination).queue, setup->printer->path());
    }
    return set;
  }
  setup->destination = line.destination;
  Result<std::shared_ptr<PrinterDescription>> printer = PrinterDescription::open(line.ppd);
  if (!printer) return printer.failure();
  setup->printer = printer.take();
  return {};
}

// What the command line wishes of a session on whichever printer. A ticket may come by a pipe, so
// it is read once.
Status addWishes(const CommandLine &line, SessionSetup *setup) {
  setup->marks = line.marks;
  setup->panelsMayResize = line.resize;
  if (line.ticket.isNull()) return {};
  Result<TicketValues> ticket = readTicket(line.ticket);
  if (!ticket) return ticket.failure();
  setup->ticket = ticket.take();
  return {};
}

Status applyPagesPerSheet(const OptionChoice &option, PrintSession &session) {
  bool isNumber = false;
  const int pages = option.choice.toInt(&isNumber);
  if (!isNumber || pages < 1) {
    return Failure{FailureKind::Usage, QStringLiteral("-o %1=%2").arg(option.option, option.choice),
                   QStringLiteral("the number of pages per sheet must be a positive integer")};
  }
  session.job().setPagesPerSheet(pages == 1 ? 0 : pages);
  return {};
}

// What is no setting that the dialog shows goes into the ticket, where panels and job find it.
Status applyJobOption(const OptionChoice &option, const QList<OptionChoice> &beside,
                      PrintSession &session) {
  const Result<bool> taken = session.job().take(option.option, option.choice);
  if (!taken) return taken.failure();
  if (taken.value()) return {};
  const OptionChoice entry = bookletEntry(option).value_or(option);
  session.setTicketValue(entry.option, entry.choice);
  session.job().pickWord(option, beside);
  return {};
}

// An option of the printer is a pick like any other.
Status applyOption(const OptionChoice &option, const QList<OptionChoice> &beside,
                   PrintSession &session) {
  if (option.option == pagesPerSheetOption) return applyPagesPerSheet(option, session);
  if (!session.marks().printer().has(option.option)) {
    return applyJobOption(option, beside, session);
  }
  if (!session.marks().spelled(option.option, option.choice)) {
    return Failure{FailureKind::Usage, QStringLiteral("-o %1=%2").arg(option.option, option.choice),
                   QStringLiteral("the PPD's option %1 has no such choice").arg(option.option)};
  }
  session.pick(option.option, option.choice);
  return {};
}

// Copies and page ranges have letters of their own, and are options like any other; a complaint
// names the letter.
Status applyJobOptions(const CommandLine &line, PrintSession &session) {
  QList<OptionChoice> options;
  if (line.copies > 0) options.append({copiesOption, QString::number(line.copies)});
  if (!line.pageRanges.isNull()) options.append({pageRangesOption, line.pageRanges});
  for (const OptionChoice &option : options) {
    const Status applied = applyJobOption(option, options, session);
    if (applied) continue;
    const auto letter = option.option == copiesOption ? QLatin1String("-n") : QLatin1String("-P");
    return Failure{applied.failure().kind, QStringLiteral("%1 %2").arg(letter, option.choice),
                   applied.failure().why};
  }
  return {};
}

Status applyOptions(const CommandLine &line, PrintSession &session) {
  for (const OptionChoice &option : line.options) {
    if (Status applied = applyOption(option, line.options, session); !applied) return applied;
  }
  return {};
}

Result<PluginList> reported(const PluginHarvest &harvest, const CommandLine &line) {
  // Without a panel the actions on its controls would fail as well, which is not what is wrong.
  const bool isAllBroken = harvest.plugins.isEmpty() && !harvest.failures.isEmpty();
  if (isAllBroken && !line.actions.isEmpty()) return harvest.failures.first();
  for (const Failure &failure : harvest.failures) report(failure);
  return PluginList{harvest.plugins.begin(), harvest.plugins.end()};
}

Result<PluginHarvest> pluginsFor(const CommandLine &line) {
  if (line.plugins.isEmpty()) return loadInstalledPlugins(PluginPlaces::ofThisProgram());
  PluginHarvest harvest;
  for (const QString &path : line.plugins) {
    Result<LoadedPlugin> plugin = loadPlugin(path);
    if (!plugin) return plugin.failure();
    harvest.plugins << std::make_shared<LoadedPlugin>(plugin.take());
  }
  return harvest;
}

}  // namespace

Result<SessionSetup> gatherSetup(const CommandLine &line,
                                 const std::shared_ptr<PasswordSource> &passwords,
                                 const std::atomic<bool> *cancelled) {
  SessionSetup setup;
  if (const Status gathered = gatherPrinter(line, passwords, cancelled, &setup); !gathered) {
    return gathered.failure();
  }
  return setup;
}

PanelsAhead::PanelsAhead(const CommandLine &line) : m_plugins(pluginsFor(line)) {
  if (!m_plugins) return;
  for (const auto &plugin : m_plugins.value().plugins) {
    m_interfaces.emplace_back(*plugin->info.bundle);
  }
}

Result<std::unique_ptr<PrintSession>> startSession(const CommandLine &line,
                                                   const SessionSetup &setup,
                                                   const PanelsAhead &panels,
                                                   AppliedPreset *applied) {
  SessionSetup wished = setup;
  if (const Status added = addWishes(line, &wished); !added) return added.failure();
  Result<std::unique_ptr<PrintSession>> begun = PrintSession::begin(wished);
  if (!begun) return begun;
  std::unique_ptr<PrintSession> session = begun.take();
  if (const Status preset = applyPresetAsAsked(line, *session, applied); !preset) {
    return preset.failure();
  }
  if (const Status said = applyJobOptions(line, *session); !said) return said.failure();
  if (const Status said = applyOptions(line, *session); !said) return said.failure();
  if (!panels.plugins()) return panels.plugins().failure();
  Result<PluginList> good = reported(panels.plugins().value(), line);
  if (!good) return good.failure();
  const bool isAsApplied = applied != nullptr && applied->after == settingsInForce(*session);
  session->openPanels(good.take());
  // What panels add to a preset is no change of it.
  if (isAsApplied) applied->after = settingsInForce(*session);
  return session;
}

Result<std::unique_ptr<PrintSession>> startSession(const CommandLine &line,
                                                   const SessionSetup &setup) {
  return startSession(line, setup, PanelsAhead(line));
}

void askAhead(const CommandLine &line) {
  if (line.ppd.isNull()) findPrinterAhead(serverAccess(line, {}), line.destination);
  const bool isSent = line.headless && line.print && line.output.isNull();
  if (isSent && line.files.size() == 1) lookAhead(line.files.constFirst());
}

// A print server takes its time, as does reading a large description; plug-ins and their controls
// can be loaded meanwhile.
Result<std::unique_ptr<PrintSession>> startSession(
    const CommandLine &line, const std::shared_ptr<PasswordSource> &passwords) {
  auto gathering = std::async(std::launch::async, [&] { return gatherSetup(line, passwords); });
  const PanelsAhead panels(line);
  const Result<SessionSetup> setup = gathering.get();
  return setup ? startSession(line, setup.value(), panels)
               : Result<std::unique_ptr<PrintSession>>(setup.failure());
}

}  // namespace orvek
