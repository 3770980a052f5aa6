// SPDX-License-Identifier: Apache-2.0
// JSON form of presets; the ticket part is a ticket as it stands in a file of its own.

#include "host/presets/Preset.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace orvek {
namespace {

const QString nameKey = QStringLiteral("name");
const QString printerKey = QStringLiteral("printer");
const QString optionsKey = QStringLiteral("options");
const QString ticketKey = QStringLiteral("ticket");

Failure invalid(const QString &where, const Phrase &why) {
  return {FailureKind::Invalid, where, why};
}

Failure notJson(const QByteArray &json, const QString &where, const QJsonParseError &error) {
  const auto line = json.left(error.offset).count('\n') + 1;
  return invalid(where + u':' + QString::number(line),
                 Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "not a preset: %1"),
                        {Phrase::ofSystem(error.errorString())}));
}

/// Absent is fine, but what is there has to be of the kind that the part is.
Status checkKinds(const QJsonObject &object, const QString &where) {
  for (const QString &key : {nameKey, printerKey}) {
    if (object.contains(key) && !object.value(key).isString()) {
      return invalid(where,
                     Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "\"%1\" must be text"), {key}));
    }
  }
  for (const QString &key : {optionsKey, ticketKey}) {
    if (object.contains(key) && !object.value(key).isObject()) {
      return invalid(
          where, Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "\"%1\" must be an object"), {key}));
    }
  }
  return {};
}

Status readOptions(const QJsonObject &options, const QString &where, Preset &preset) {
  for (auto option = options.begin(); option != options.end(); ++option) {
    if (!option.value().isString()) {
      return invalid(where, Phrase(QT_TRANSLATE_NOOP("orvek::Failure",
                                                     "option \"%1\" must have a choice as text"),
                                   {option.key()}));
    }
    preset.options.insert(option.key(), option.value().toString());
  }
  return {};
}

}  // namespace

QByteArray presetToJson(const Preset &preset) {
  QJsonObject options;
  for (auto option = preset.options.cbegin(); option != preset.options.cend(); ++option) {
    options.insert(option.key(), option.value());
  }
  const QJsonObject object{{nameKey, preset.name},
                           {printerKey, preset.printerModel},
                           {optionsKey, options},
                           {ticketKey, ticketToJson(preset.ticket)}};
  return QJsonDocument(object).toJson(QJsonDocument::Indented);
}

Result<Preset> presetFromJson(const QByteArray &json, const QString &where) {
  QJsonParseError error;
  const auto document = QJsonDocument::fromJson(json, &error);
  if (error.error != QJsonParseError::NoError) return notJson(json, where, error);
  if (!document.isObject()) {
    return invalid(where, Phrase(QT_TRANSLATE_NOOP("orvek::Failure",
                                                   "not a preset: one JSON object expected")));
  }
  const QJsonObject object = document.object();
  if (Status kinds = checkKinds(object, where); !kinds) return kinds.failure();

  Preset preset{object.value(nameKey).toString(), object.value(printerKey).toString(), {}, {}};
  if (Status read = readOptions(object.value(optionsKey).toObject(), where, preset); !read) {
    return read.failure();
  }
  auto ticket = parseTicket(QJsonDocument(object.value(ticketKey).toObject()).toJson(), where);
  if (!ticket) return ticket.failure();
  preset.ticket = ticket.take();
  return preset;
}

}  // namespace orvek
