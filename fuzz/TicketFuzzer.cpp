// SPDX-License-Identifier: Apache-2.0
// Tickets and presets: what was read, written and read again is the same.

#include <QJsonDocument>

#include "fuzz/Require.h"
#include "host/presets/Preset.h"
#include "host/ticket/TicketFile.h"

namespace {

using namespace orvek;
using fuzz::require;
using fuzz::requireReason;

void requireInvalid(const Failure &failure) {
  require(failure.kind == FailureKind::Invalid);
  requireReason(failure);
}

void requireTicket(const TicketValues &values) {
  for (const QVariant &value : values) {
    const int type = value.metaType().id();
    require(type == QMetaType::QString || type == QMetaType::LongLong);
  }
}

void readTicket(const QByteArray &json) {
  const auto values = parseTicket(json, QStringLiteral("ticket"));
  if (!values) return requireInvalid(values.failure());
  requireTicket(values.value());
  const QByteArray written = QJsonDocument(ticketToJson(values.value())).toJson();
  const auto again = parseTicket(written, QStringLiteral("ticket"));
  require(again && again.value() == values.value());
}

void readPreset(const QByteArray &json) {
  const auto preset = presetFromJson(json, QStringLiteral("preset"));
  if (!preset) return requireInvalid(preset.failure());
  requireTicket(preset.value().ticket);
  const auto again = presetFromJson(presetToJson(preset.value()), QStringLiteral("preset"));
  require(again && again.value().name == preset.value().name &&
          again.value().printerModel == preset.value().printerModel &&
          again.value().options == preset.value().options &&
          again.value().ticket == preset.value().ticket);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  // A copy of its very size, so that one byte too far is seen.
  const QByteArray json(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
  readTicket(json);
  readPreset(json);
  return 0;
}
