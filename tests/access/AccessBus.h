// SPDX-License-Identifier: Apache-2.0
// A screen and an accessibility bus of the test's own, and what a screen reader does on them: looks
// at the window's objects, works them, and hears what happens.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QObject>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>
#include <optional>

namespace orvek::test {

/// One object of a program's window, as the bus names it. A value.
struct AccessNode {
  QString service;
  QString path;

  bool isNull() const { return path.isEmpty() || path.endsWith(QLatin1String("/null")); }
  bool operator==(const AccessNode &) const = default;
};

/// Something that was said or shown. Plain data.
struct AccessEvent {
  /// "announcement", "showing"
  QString kind;
  QString words;
  AccessNode source;
};

/// Everything ends with it. Waits for what it starts; on the test's thread.
class AccessBus final : public QObject {
  Q_OBJECT

 public:
  AccessBus();
  ~AccessBus() override;

  /// Why there can be none on this machine; empty where there can.
  static QString obstacle();

  /// What a program needs to be on this screen and bus.
  QProcessEnvironment environment() const;

  /// False where the bus did not come up; `problem` says why.
  bool start();
  QString problem() const { return m_problem; }

  /// The program's windows; none before it has some.
  QList<AccessNode> windows() const;

  /// The first object below that has this role and this name, or is labelled so; any name where
  /// that is null. Names are compared without mnemonics' marks and the colon behind a label.
  AccessNode find(const QString &role, const QString &name, const AccessNode &below = {}) const;
  /// The same, waited for.
  AccessNode waitFor(const QString &role, const QString &name) const;

  QString name(const AccessNode &node) const;
  /// The name of what labels it; null where nothing does.
  QString label(const AccessNode &node) const;
  QString description(const AccessNode &node) const;
  QString role(const AccessNode &node) const;
  QList<AccessNode> children(const AccessNode &node) const;
  /// Its text, where it is a text; else its value.
  QString text(const AccessNode &node) const;
  bool isShowing(const AccessNode &node) const;
  bool isChecked(const AccessNode &node) const;
  bool isFocused(const AccessNode &node) const;

  QStringList actions(const AccessNode &node) const;
  /// The object's action of that name ("Press", "Toggle", "SetFocus").
  bool act(const AccessNode &node, const QString &action) const;

  /// A key, by its X name ("Down"), through the bus, to whatever has the keyboard.
  void press(const QString &key) const;

  /// Roles, names and states of all that shows, one a line: for messages of failed tests.
  QString tree(const AccessNode &node, int depth = 0) const;

  /// What was heard since forget().
  const QList<AccessEvent> &heard() const { return m_heard; }
  QStringList announced() const;
  void forget() { m_heard.clear(); }
  bool waitForWords(const QString &part) const;

 private Q_SLOTS:
  void announcement(const QDBusMessage &event);
  void stateChanged(const QDBusMessage &event);

 private:
  bool startScreen();
  bool startBuses();
  bool listen();
  QDBusMessage call(const AccessNode &node, const char *interface, const char *method,
                    const QVariantList &arguments = {}) const;
  QVariant property(const AccessNode &node, const char *interface, const char *name) const;
  bool hasState(const AccessNode &node, int state) const;

  QTemporaryDir m_folder;
  QString m_display;
  QString m_sessionAddress;
  QString m_problem;
  QProcess m_screen;
  QProcess m_session;
  QProcess m_launcher;
  QDBusConnection m_bus{QStringLiteral("none")};
  QList<AccessEvent> m_heard;
};

}  // namespace orvek::test
