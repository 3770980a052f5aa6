// SPDX-License-Identifier: Apache-2.0
// Tickets as files: one flat JSON object, key to text or integer. May touch the file system.
#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QVariant>

#include "platform/system/Result.h"

namespace orvek {

/// A ticket's content: text (QString) or integer (qint64) by key.
using TicketValues = QMap<QString, QVariant>;

/// In bytes. Reading JSON takes many times the memory that it has as a file.
inline constexpr qint64 largestSettings = 1 << 20;

/// The bytes of a ticket or preset from an open file or pipe, called `name` in failures: Invalid
/// above largestSettings, Io where it can't be read.
Result<QByteArray> readSettings(QIODevice &file, const Phrase &name);

/// Reads a ticket of largestSettings at most. Failures: Io where the file can't be read; Invalid,
/// with the line or the key, where it is no flat JSON object of text and integers. Integers beyond
/// 64 bits become the nearest that fits.
Result<TicketValues> readTicket(const QString &path);

/// The same from bytes; `name` stands for the file in failures.
Result<TicketValues> parseTicket(const QByteArray &json, const QString &name);

/// Writes the ticket; a file is replaced as a whole or left as it was, a pipe or device written
/// into.
Status writeTicket(const QString &path, const TicketValues &values);

/// Integers stay integers, text stays text.
QJsonObject ticketToJson(const TicketValues &values);

}  // namespace orvek
