// SPDX-License-Identifier: Apache-2.0
// What a printing session begins with. Plain data, gathered before there is a session.
#pragma once

#include <QList>
#include <QString>
#include <memory>

#include "host/ppd/Marks.h"
#include "host/ppd/PrinterDescription.h"
#include "host/printers/SettingOffer.h"
#include "host/ticket/TicketFile.h"

namespace orvek {

/// May be made on any thread; shares the printer with the session that it is handed to. Plain data
/// besides.
struct SessionSetup {
  /// Null: a printer without PPD.
  std::shared_ptr<PrinterDescription> printer = {};

  /// The queue that a job goes to, "NAME[/INSTANCE]"; null: none was named.
  QString destination = {};

  TicketValues ticket = {};

  /// The queue's and the user's saved options. A booklet's keys among them are the ticket's
  /// beginning, which `ticket` overrules; of the rest, what the PPD lacks is passed over.
  QList<OptionChoice> queueOptions = {};

  /// Equipment, an earlier job: marked last, the ticket left alone.
  QList<OptionChoice> marks = {};

  /// What a printer without PPD offers; empty where there is a PPD.
  QList<SettingOffer> offers = {};

  /// Of what a print server does with a job whatever its printer (banner pages, times), what the
  /// queue takes; empty: no server was asked.
  QList<SettingOffer> jobOffers = {};

  bool panelsMayResize = true;
};

}  // namespace orvek
