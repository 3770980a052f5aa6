// SPDX-License-Identifier: Apache-2.0
// Looks at the ticket's numbers.

#include "host/session/TicketBounds.h"

#include <QCoreApplication>
#include <algorithm>

#include "host/ppd/Keyword.h"
#include "host/ticket/JobOptionNames.h"

namespace orvek {
namespace {

struct Words {
  Q_DECLARE_TR_FUNCTIONS(orvek::TicketBounds)
};

QString said(qint64 copies) {
  return copies == 1 ? Words::tr("Copies was set to 1: less is no job")
                     : Words::tr("Copies was set to %1: no job makes more").arg(copies);
}

}  // namespace

QStringList boundCopies(Ticket &ticket, const PrinterDescription &printer) {
  QStringList words;
  for (const QString &key : ticket.values().keys()) {
    if (!sameKeyword(key, copiesOption) || printer.has(key)) continue;
    const QVariant asked = ticket.value(key);
    bool isNumber = false;
    const qint64 copies = asked.toString().toLongLong(&isNumber);
    const qint64 bounded = std::clamp<qint64>(copies, 1, maximumCopies);
    if (!isNumber || bounded == copies) continue;
    const bool isText = asked.metaType() == QMetaType::fromType<QString>();
    ticket.setValue(key, isText ? QVariant(QString::number(bounded)) : QVariant(bounded));
    words << said(bounded);
  }
  return words;
}

}  // namespace orvek
