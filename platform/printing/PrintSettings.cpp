// SPDX-License-Identifier: Apache-2.0
// The ticket: a map with locks, and the two readings of its values.

#include "platform/printing/PrintSettings.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "platform/printing/PrintSessionHandle.h"

namespace orvek {
namespace {

constexpr std::int64_t smallest = std::numeric_limits<std::int32_t>::min();
constexpr std::int64_t largest = std::numeric_limits<std::int32_t>::max();

bool isText(const QVariant &value) {
  return value.metaType().id() == QMetaType::QString;
}

bool isInteger(const QVariant &value) {
  switch (value.metaType().id()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
      return true;
    default:
      return false;
  }
}

std::int32_t nearest32(std::int64_t value) {
  return static_cast<std::int32_t>(std::clamp(value, smallest, largest));
}

}  // namespace

PrintSessionHandle::~PrintSessionHandle() = default;

QMap<QString, QVariant> Ticket::values() const {
  QMap<QString, QVariant> all;
  for (auto entry = m_entries.begin(); entry != m_entries.end(); ++entry) {
    if (entry->value.isValid()) all.insert(entry.key(), entry->value);
  }
  return all;
}

QVariant Ticket::value(const QString &key) const {
  return m_entries.value(key).value;
}

void Ticket::setValue(const QString &key, const QVariant &value) {
  if (value.isValid()) {
    m_entries[key].value = value;
  } else {
    m_entries.remove(key);
  }
  announce(key);
}

void Ticket::setChangeListener(std::function<void(const QString &key)> listener) {
  m_listener = std::move(listener);
}

void Ticket::announce(const QString &key) {
  // A copy: the listener may end itself.
  const auto listener = m_listener;
  if (listener) listener(key);
}

PrintSettings::PrintSettings(std::shared_ptr<Ticket> ticket) : m_ticket(std::move(ticket)) {}

PrintSettings::~PrintSettings() {
  if (!m_ticket) return;
  // A lock ends with its writer: nobody else could ever lift it.
  for (Ticket::Entry &entry : m_ticket->m_entries) {
    if (entry.lockedBy == this) entry.lockedBy = nullptr;
  }
}

OSStatus PrintSettings::get(const QString &key, QVariant *value) const {
  if (!m_ticket) return kPMInvalidParameter;
  const QVariant found = m_ticket->value(key);
  if (found.isValid() && !isText(found) && !isInteger(found)) return kPMValueFormatError;
  if (value != nullptr) *value = found;
  return noErr;
}

OSStatus PrintSettings::set(const QString &key, const QVariant &value, bool locked) {
  if (!m_ticket) return kPMInvalidParameter;
  Ticket::Entry &entry = m_ticket->m_entries[key];
  if (entry.lockedBy != nullptr && entry.lockedBy != this) return kPMLocked;
  entry.value = value;
  if (locked) entry.lockedBy = this;
  m_ticket->announce(key);
  return noErr;
}

QString textReading(const QVariant &value) {
  if (isText(value)) return value.toString();
  if (isInteger(value)) return QString::number(value.toLongLong());
  return {};
}

std::int32_t integerReading(const QVariant &value) {
  if (isInteger(value)) return nearest32(value.toLongLong());
  return leadingInteger(textReading(value));
}

std::int32_t leadingInteger(const QString &text) {
  auto at = std::find_if_not(text.begin(), text.end(), [](QChar c) { return c.isSpace(); });
  const bool negative = at != text.end() && *at == u'-';
  if (at != text.end() && (*at == u'-' || *at == u'+')) ++at;
  std::int64_t number = 0;
  for (; at != text.end() && *at >= u'0' && *at <= u'9'; ++at) {
    number = std::min(number * 10 + (at->unicode() - u'0'), largest + 1);
  }
  return nearest32(negative ? -number : number);
}

}  // namespace orvek

OSStatus PMPrintSettingsGetValue(PMPrintSettings settings, const QString &key, QVariant *value) {
  if (value != nullptr) *value = QVariant();
  return settings == nullptr ? kPMInvalidParameter : settings->get(key, value);
}

OSStatus PMPrintSettingsSetValue(PMPrintSettings settings, const QString &key,
                                 const QVariant &value, bool locked) {
  return settings == nullptr ? kPMInvalidParameter : settings->set(key, value, locked);
}
