// SPDX-License-Identifier: Apache-2.0
// What a job must say of itself so that it prints as the dialog showed it. A pure function of its
// arguments.
#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include "host/ppd/Marks.h"
#include "host/ticket/TicketFile.h"

namespace orvek {

/// Option or key to text: every marked choice that differs from the PPD's default or from what the
/// queue would take by itself, every ticket key (an option's key with its marked choice), and
/// "number-up" where several pages go on a sheet. A word of the ticket or the queue that is still
/// true ("sides" for "Duplex") goes as it was written, and what it stands for goes without saying;
/// one that is not is left out, and the options it speaks of are all said.
QMap<QString, QString> jobOptionsFor(const Marks &marks, const QList<OptionChoice> &queueOptions,
                                     const TicketValues &ticket, int pagesPerSheet);

/// The words among the queue's options that must not go with the job, as they are no longer true.
QStringList overruledOptions(const Marks &marks, const QList<OptionChoice> &queueOptions,
                             const TicketValues &ticket);

}  // namespace orvek
