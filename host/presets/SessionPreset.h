// SPDX-License-Identifier: Apache-2.0
// Between a preset and a session: what of a session is worth saving, and how a preset is put into
// one.
#pragma once

#include "host/presets/AppliedPreset.h"
#include "host/presets/Preset.h"
#include "host/presets/PresetFit.h"
#include "host/session/PrintSession.h"

namespace orvek {

/// The session as a preset: every mark that is not the PPD's default, installed equipment left out,
/// and the whole ticket.
Preset presetOf(PrintSession &session, const QString &name);

/// The same for a session on another printer: with the paper that its pages are laid out for,
/// default or not, as the other printer's default may be another; and without what its ticket says
/// of a booklet only as panels write defaults down, as the other queue may have a booklet saved.
Preset entriesOf(PrintSession &session);

/// What to remember of a job that is sent: the same, with what the queue has saved otherwise; and
/// without what is that job's alone (which pages, until when it is held, passwords).
Preset lastUsedOf(PrintSession &session);

/// The session's settings as far as presets bring them, whoever set them and however it is written.
SettingsInForce settingsInForce(const PrintSession &session);

/// Puts a preset into the session, before or after its panels were opened: its ticket is written
/// and each of its choices picked, so that constraints speak up as for a user's pick; open panels
/// restore. Ticket keys and options in `keep` stay as the session has them. Gives what the printer
/// can't take.
QList<PresetMisfit> applyPreset(PrintSession &session, const Preset &preset,
                                const QStringList &keep = {});

}  // namespace orvek
