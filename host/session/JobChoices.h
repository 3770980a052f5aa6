// SPDX-License-Identifier: Apache-2.0
// What a job can be told whatever its printer, one choice of a few each: which pages, how large, in
// which order on the sheet; and by the print server's leave a banner page, a time, a priority.
#pragma once

#include <optional>

#include "host/session/CommonSettings.h"

namespace orvek {

class PrintSession;

enum class JobChoice { PageSet, Scaling, OrderOnSheet, Banner, Start, Priority };

inline constexpr int jobChoices = static_cast<int>(JobChoice::Priority) + 1;

/// The choice as the job has it: the ticket's word, else what is saved for the queue. A value that
/// is none of the usual ones is offered besides. Nothing where the PPD has an option of that name,
/// and for what is the print server's to do where none was asked what it takes (SessionSetup).
std::optional<Setting> jobChoice(const PrintSession &session, JobChoice which);

/// Writes the choice into the ticket; nothing where it is what the queue does by itself.
void pickJobChoice(PrintSession &session, JobChoice which, const QString &choice);

/// Whether the job is told otherwise than its queue would do it.
bool isJobChoiceChanged(const PrintSession &session, JobChoice which);

/// Which of them a ticket's key is about, in words of any kind ("fit-to-page").
std::optional<JobChoice> jobChoiceOf(const QString &key);

}  // namespace orvek
