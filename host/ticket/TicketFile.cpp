// SPDX-License-Identifier: Apache-2.0
// Reads and writes tickets with Qt's JSON and atomic files.

#include "host/ticket/TicketFile.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <cmath>
#include <limits>

#include "platform/system/WholeFile.h"

namespace orvek {
namespace {

Failure invalid(const QString &what, const Phrase &why) {
  return {FailureKind::Invalid, what, why};
}

Failure notJson(const QByteArray &json, const QString &name, const QJsonParseError &error) {
  const auto line = json.left(error.offset).count('\n') + 1;
  return invalid(QString(name + QLatin1Char(':') + QString::number(line)),
                 Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "not a ticket: JSON expected (%1)"),
                        {Phrase::ofSystem(error.errorString())}));
}

Phrase kindOf(const QJsonValue &value) {
  switch (value.type()) {
    case QJsonValue::Null:
      return QStringLiteral("null");
    case QJsonValue::Bool:
      return Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "true or false"));
    case QJsonValue::Array:
      return Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "a list"));
    case QJsonValue::Object:
      return Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "an object"));
    default:
      return Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "a number with a fraction"));
  }
}

qint64 nearest64(double value) {
  // 2^63 is the first double that no longer fits.
  constexpr double limit = 9223372036854775808.0;
  if (value >= limit) return std::numeric_limits<qint64>::max();
  if (value < -limit) return std::numeric_limits<qint64>::min();
  return static_cast<qint64>(value);
}

// Invalid where the value is neither text nor integer.
QVariant ticketValue(const QJsonValue &value) {
  if (value.isString()) return value.toString();
  if (!value.isDouble()) return {};
  const QVariant number = value.toVariant();
  if (number.metaType().id() == QMetaType::LongLong) return number;
  const double real = value.toDouble();
  return std::trunc(real) == real ? QVariant(nearest64(real)) : QVariant();
}

}  // namespace

Result<TicketValues> parseTicket(const QByteArray &json, const QString &name) {
  QJsonParseError error;
  const QJsonDocument document = QJsonDocument::fromJson(json, &error);
  if (error.error != QJsonParseError::NoError) return notJson(json, name, error);
  if (!document.isObject()) {
    return invalid(name, Phrase(QT_TRANSLATE_NOOP("orvek::Failure",
                                                  "not a ticket: one JSON object expected")));
  }
  TicketValues values;
  const QJsonObject object = document.object();
  for (auto entry = object.begin(); entry != object.end(); ++entry) {
    const QVariant value = ticketValue(entry.value());
    if (!value.isValid()) {
      return invalid(name,
                     Phrase(QT_TRANSLATE_NOOP("orvek::Failure",
                                              "key \"%1\" must be text or an integer, not %2"),
                            {entry.key(), kindOf(entry.value())}));
    }
    values.insert(entry.key(), value);
  }
  return values;
}

Result<QByteArray> readSettings(QIODevice &file, const Phrase &name) {
  QByteArray bytes;
  while (bytes.size() <= largestSettings) {
    const QByteArray more = file.read(largestSettings + 1 - bytes.size());
    if (more.isEmpty()) break;
    bytes += more;
  }
  if (bytes.size() > largestSettings) {
    return Failure{FailureKind::Invalid, name,
                   Phrase(QT_TRANSLATE_NOOP("orvek::Failure",
                                            "is larger than 1 MB, as no ticket and no preset is"))};
  }
  const auto *asFile = qobject_cast<const QFileDevice *>(&file);
  if (asFile != nullptr && asFile->error() != QFileDevice::NoError) {
    return Failure{FailureKind::Io, name, Phrase::ofSystem(file.errorString())};
  }
  return bytes;
}

Result<TicketValues> readTicket(const QString &path) {
  QFile file(path);
  if (QFileInfo(path).isDir()) {
    return Failure{FailureKind::Io, path, QStringLiteral("is a folder, not a ticket")};
  }
  if (!file.open(QIODevice::ReadOnly)) return Failure{FailureKind::Io, path, file.errorString()};
  const Result<QByteArray> json = readSettings(file, path);
  if (!json) return json.failure();
  return parseTicket(json.value(), path);
}

Status writeTicket(const QString &path, const TicketValues &values) {
  return writeFile(path, QJsonDocument(ticketToJson(values)).toJson(QJsonDocument::Indented));
}

QJsonObject ticketToJson(const TicketValues &values) {
  QJsonObject object;
  for (auto entry = values.begin(); entry != values.end(); ++entry) {
    const bool isText = entry->metaType().id() == QMetaType::QString;
    object.insert(entry.key(),
                  isText ? QJsonValue(entry->toString()) : QJsonValue(entry->toLongLong()));
  }
  return object;
}

}  // namespace orvek
