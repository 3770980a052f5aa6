// SPDX-License-Identifier: Apache-2.0
// Asks a print server for all that a session begins with.

#include "host/session/QueueSetup.h"

#include "host/printers/PrinterList.h"
#include "host/printers/QueueAttributes.h"
#include "host/printers/QueuePPD.h"

namespace orvek {
namespace {

QList<OptionChoice> savedOptions(const Queue &queue) {
  QList<OptionChoice> options;
  for (auto entry = queue.options.begin(); entry != queue.options.end(); ++entry) {
    options.append({entry.key(), entry.value()});
  }
  return options;
}

Status describe(ServerTalk &talk, const QString &queue, SessionSetup *setup) {
  const Result<QString> path = QueuePPD().fetch(talk, queue);
  if (!path) return path.failure();
  if (path.value().isNull()) return {};
  Result<std::shared_ptr<PrinterDescription>> printer = PrinterDescription::open(path.value());
  if (!printer) return printer.failure();
  setup->printer = printer.take();
  return {};
}

// A queue that says nothing of itself still prints.
QList<SettingOffer> offersIn(Result<QList<SettingOffer>> offers) {
  return offers ? offers.take() : QList<SettingOffer>();
}

}  // namespace

Status setUpForQueue(const ServerAccess &access, const QString &destination, SessionSetup *setup,
                     bool jobsToo) {
  Result<std::unique_ptr<ServerTalk>> talk = ServerTalk::open(access);
  if (!talk) return talk.failure();
  const Result<Queue> queue = findPrinter(*talk.value(), destination);
  if (!queue) return queue.failure();
  if (Status described = describe(*talk.value(), queue.value().name, setup); !described) {
    return described;
  }
  const QString name = queue.value().name;
  if (!setup->printer) setup->offers = offersIn(readQueueSettings(*talk.value(), name));
  if (jobsToo) setup->jobOffers = offersIn(readJobSettings(*talk.value(), name));
  setup->queueOptions = savedOptions(queue.value());
  setup->destination = queue.value().destination();
  ServerTalk::close(talk.take());
  return {};
}

}  // namespace orvek
