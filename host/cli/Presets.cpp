// SPDX-License-Identifier: Apache-2.0
// Presets from the command line.

#include "host/cli/Presets.h"

#include "host/cli/Console.h"
#include "host/presets/PresetStore.h"
#include "host/presets/SessionPreset.h"
#include "host/ticket/ServerWords.h"

namespace orvek {

Status applyPresetAsAsked(const CommandLine &line, PrintSession &session) {
  if (line.preset.isNull()) return {};
  const Result<Preset> preset = PresetStore().load(line.preset);
  if (!preset) return preset.failure();
  QStringList keep = session.ticket().values().keys();
  for (const OptionChoice &meant :
       ServerWords::of(session.marksToTry(), {}, session.ticket().values()).choices()) {
    keep << meant.option;
  }
  for (const PresetMisfit &misfit : applyPreset(session, preset.value(), keep)) tell(misfit.line());
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
