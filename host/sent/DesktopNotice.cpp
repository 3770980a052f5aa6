// SPDX-License-Identifier: Apache-2.0
// Calls org.freedesktop.Notifications and hears its signals.

#include "host/sent/DesktopNotice.h"

#include <QDBusMessage>
#include <QStringList>
#include <QVariantMap>

namespace orvek {
namespace {

const QString service = QStringLiteral("org.freedesktop.Notifications");
const QString path = QStringLiteral("/org/freedesktop/Notifications");
const QString program = QStringLiteral("orvek-print");
const QString actionKey = QStringLiteral("cancel");
constexpr int shownMilliseconds = 15000;
constexpr int patience = 3000;

}  // namespace

DesktopNotice::DesktopNotice(const QDBusConnection &bus) : m_bus(bus) {
  m_bus.connect(service, path, service, QStringLiteral("ActionInvoked"), this,
                SLOT(hearAction(uint, QString)));
  m_bus.connect(service, path, service, QStringLiteral("NotificationClosed"), this,
                SLOT(hearClosed(uint, uint)));
}

// The words are its summary, which is plain; its body may be taken for markup.
bool DesktopNotice::show(const QString &words, const QString &action) {
  QDBusMessage call =
      QDBusMessage::createMethodCall(service, path, service, QStringLiteral("Notify"));
  const QStringList actions = action.isNull() ? QStringList() : QStringList{actionKey, action};
  const QVariantMap hints{{QStringLiteral("desktop-entry"), program}};
  call << program << m_notice << program << words << QString() << actions << hints
       << shownMilliseconds;
  const QDBusMessage reply = m_bus.call(call, QDBus::Block, patience);
  if (reply.type() != QDBusMessage::ReplyMessage) return false;
  m_notice = reply.arguments().value(0).toUInt();
  return true;
}

void DesktopNotice::hearAction(uint notice, const QString &action) {
  if (notice == m_notice && action == actionKey) Q_EMIT actionAsked();
}

void DesktopNotice::hearClosed(uint notice, uint) {
  if (notice == m_notice) Q_EMIT closed();
}

}  // namespace orvek
