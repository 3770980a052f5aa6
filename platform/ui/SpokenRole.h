// SPDX-License-Identifier: Apache-2.0
// What screen readers take a widget for, where that is not what its class looks like to the
// toolkit.
#pragma once

#include <QAccessibleWidget>

namespace orvek {

/// The toolkit's way to ask for an object's speech; nothing for objects of other classes. The
/// toolkit owns what it is given.
template <typename Widget, QAccessible::Role role>
QAccessibleInterface *speechAs(const QString &, QObject *object) {
  auto *widget = qobject_cast<Widget *>(object);
  return widget == nullptr ? nullptr : new QAccessibleWidget(widget, role);
}

/// From now on widgets of this class, which has `Q_OBJECT`, are taken for `role`. Any number of
/// calls does what one does. For the interface's thread.
template <typename Widget, QAccessible::Role role>
void speakAs() {
  QAccessible::installFactory(speechAs<Widget, role>);
}

}  // namespace orvek
