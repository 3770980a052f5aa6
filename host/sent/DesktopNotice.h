// SPDX-License-Identifier: Apache-2.0
// One notification of the desktop's, over the session bus.
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>

namespace orvek {

/// Shown once, changed at most, and gone by itself. Lives on the thread of its event loop. Nothing
/// fails: a desktop without notifications shows none.
class DesktopNotice final : public QObject {
  Q_OBJECT

 public:
  explicit DesktopNotice(const QDBusConnection &bus);

  /// Shows these words, in place of what it showed before, with one button where `action` is not
  /// null. Whether there is anybody who shows it.
  bool show(const QString &words, const QString &action);

 Q_SIGNALS:
  /// The button was pressed.
  void actionAsked();
  /// The notice has gone.
  void closed();

 private Q_SLOTS:
  void hearAction(uint notice, const QString &action);
  void hearClosed(uint notice, uint reason);

 private:
  QDBusConnection m_bus;
  uint m_notice = 0;
};

}  // namespace orvek
