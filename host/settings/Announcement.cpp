// SPDX-License-Identifier: Apache-2.0
// Says it on the bus of screen readers, where the toolkit's own bridge has no word for it.

#include "host/settings/Announcement.h"

#include <QAccessible>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QVariantMap>
#include <QWidget>

namespace orvek {
namespace {

// As the toolkit's bridge calls its connection and its objects.
const QString bridge = QStringLiteral("a11y");
const QString objects = QStringLiteral("/org/a11y/atspi/accessible/");
// Said after what is being said now, not in its place.
constexpr int politely = 1;

}  // namespace

void announce(QWidget &where, const QString &words) {
  if (words.isEmpty() || !QAccessible::isActive()) return;
  QAccessibleEvent alert(&where, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
  QAccessibleInterface *speech = QAccessible::queryAccessibleInterface(&where);
  const QDBusConnection bus(bridge);
  if (speech == nullptr || !bus.isConnected()) return;
  QDBusMessage event = QDBusMessage::createSignal(
      objects + QString::number(QAccessible::uniqueId(speech)),
      QStringLiteral("org.a11y.atspi.Event.Object"), QStringLiteral("Announcement"));
  event << QString() << politely << 0 << QVariant::fromValue(QDBusVariant(words)) << QVariantMap();
  bus.send(event);
}

}  // namespace orvek
