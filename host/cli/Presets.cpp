// SPDX-License-Identifier: Apache-2.0
// Presets from the command line.

#include "host/cli/Presets.h"

#include "host/cli/Console.h"
#include "host/presets/PresetStore.h"
#include "host/presets/SessionPreset.h"
#include "host/ticket/ServerWords.h"

namespace orvek {
namespace {

bool saysWhatToBeginWith(const CommandLine &line) {
  const bool hasSettings = !line.ticket.isNull() || !line.marks.isEmpty();
  return hasSettings || !line.preset.isNull() || !line.output.isNull();
}

void applyLastUsed(const CommandLine &line, PrintSession &session, AppliedPreset *applied) {
  const QString queue = session.origin().destination;
  const PresetStore store;
  if (queue.isEmpty() || saysWhatToBeginWith(line) || !store.remembers()) return;
  const auto last = store.lastUsed(queue);
  if (!last || !last.value()) return;
  for (const PresetMisfit &misfit : applyPreset(session, *last.value())) tell(misfit.line());
  applied->after = settingsInForce(session);
  if (applied->after != applied->before) applied->entry.kind = PresetEntry::Kind::LastUsed;
}

}  // namespace

Status applyPresetAsAsked(const CommandLine &line, PrintSession &session, AppliedPreset *applied) {
  if (applied != nullptr) {
    applied->before = settingsInForce(session);
    applyLastUsed(line, session, applied);
  }
  if (line.preset.isNull()) return {};
  const Result<Preset> preset = PresetStore().load(line.preset);
  if (!preset) return preset.failure();
  QStringList keep = session.ticket().values().keys();
  for (const OptionChoice &meant :
       ServerWords::of(session.marksToTry(), {}, session.ticket().values()).choices()) {
    keep << meant.option;
  }
  for (const PresetMisfit &misfit : applyPreset(session, preset.value(), keep)) tell(misfit.line());
  if (applied != nullptr) {
    applied->entry = {PresetEntry::Kind::Saved, line.preset};
    applied->after = settingsInForce(session);
  }
  return {};
}

Status savePresetAsAsked(const CommandLine &line, PrintSession &session) {
  if (line.savePreset.isNull()) return {};
  return PresetStore().save(presetOf(session, line.savePreset));
}

Status listPresets() {
  const PresetListing listing = PresetStore().list();
  for (const Failure &damaged : listing.damaged) report(damaged);
  return writeLines(listing.names);
}

Status deletePreset(const QString &name) {
  return PresetStore().remove(name);
}

}  // namespace orvek
