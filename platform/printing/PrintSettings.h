// SPDX-License-Identifier: Apache-2.0
// The job's settings (the ticket): keys to text or integers, read and written with a status.
#pragma once

#include <QMap>
#include <QString>
#include <QVariant>
#include <cstdint>
#include <functional>
#include <memory>

#include "platform/printing/StatusCodes.h"

namespace orvek {

class PrintSettings;

/// The store itself. Hosts own one per job; writers hold a PrintSettings each. Belongs to one
/// thread, the interface's; writing here does not fail.
class Ticket {
 public:
  /// All keys with their values, in key order.
  QMap<QString, QVariant> values() const;

  /// The value, or an invalid QVariant for an absent key.
  QVariant value(const QString &key) const;

  /// Writes without asking for locks: for whoever owns the ticket. An invalid value removes the
  /// key.
  void setValue(const QString &key, const QVariant &value);

  /// Called after each change with its key. One listener; an empty one ends it.
  void setChangeListener(std::function<void(const QString &key)> listener);

 private:
  friend class PrintSettings;
  struct Entry {
    QVariant value;
    const PrintSettings *lockedBy = nullptr;
  };
  void announce(const QString &key);

  QMap<QString, Entry> m_entries;
  std::function<void(const QString &)> m_listener;
};

/// One writer's handle on a ticket, which it shares. Two handles on one ticket are two writers: a
/// key that one of them locked refuses the other. On the ticket's thread; failures are statuses, as
/// PMPrintSettingsGetValue and PMPrintSettingsSetValue give them.
class PrintSettings {
 public:
  explicit PrintSettings(std::shared_ptr<Ticket> ticket);
  ~PrintSettings();
  PrintSettings(const PrintSettings &) = delete;
  PrintSettings &operator=(const PrintSettings &) = delete;

  OSStatus get(const QString &key, QVariant *value) const;
  OSStatus set(const QString &key, const QVariant &value, bool locked);

 private:
  std::shared_ptr<Ticket> m_ticket;
};

/// A value's text: text as it stands, an integer as "%d", anything else (absence too) a null
/// string.
QString textReading(const QVariant &value);

/// A value's integer: an integer as it is; of a text its leading integer (white space skipped, an
/// optional sign, decimal digits), 0 where it starts with none; 0 for absence. Numbers beyond 32
/// bits give the nearest 32-bit value.
std::int32_t integerReading(const QVariant &value);

/// The leading integer of a text, by the same rule.
std::int32_t leadingInteger(const QString &text);

}  // namespace orvek

/// Borrowed; null where the host has no ticket.
using PMPrintSettings = orvek::PrintSettings *;

/// Reads `key` into `value`. An absent key is no failure: status 0 and an invalid QVariant.
/// kPMInvalidParameter without a ticket, kPMValueFormatError for a value that is neither text nor
/// integer; both leave `value` invalid.
OSStatus PMPrintSettingsGetValue(PMPrintSettings settings, const QString &key, QVariant *value);

/// Writes `key`; with `locked` other writers are refused from then on (kPMLocked).
/// kPMInvalidParameter without a ticket.
OSStatus PMPrintSettingsSetValue(PMPrintSettings settings, const QString &key,
                                 const QVariant &value, bool locked);
