// SPDX-License-Identifier: Apache-2.0
// Starts a screen, a message bus and the accessibility bus, and ends them.

#include <QDBusInterface>
#include <QDBusReply>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTest>

#include "tests/access/AccessBus.h"
#include "tests/support/EndsWithTest.h"

namespace orvek::test {
namespace {

constexpr int patience = 10000;  // milliseconds
const QString launcherProgram = QStringLiteral("/usr/libexec/at-spi-bus-launcher");

QString lineOf(QProcess &process) {
  QElapsedTimer since;
  since.start();
  while (!process.canReadLine() && since.elapsed() < patience) {
    process.waitForReadyRead(100);
    if (process.state() == QProcess::NotRunning) break;
  }
  return QString::fromUtf8(process.readLine()).trimmed();
}

void end(QProcess &process) {
  if (process.state() == QProcess::NotRunning) return;
  process.terminate();
  if (!process.waitForFinished(2000)) process.kill();
  process.waitForFinished(2000);
}

}  // namespace

AccessBus::AccessBus() {
  for (QProcess *process : {&m_screen, &m_session, &m_launcher}) endWithTest(*process);
}

AccessBus::~AccessBus() {
  for (const char *name : {"access-a11y", "access-session"}) {
    QDBusConnection::disconnectFromBus(QLatin1String(name));
  }
  end(m_launcher);
  end(m_session);
  end(m_screen);
}

QString AccessBus::obstacle() {
  for (const char *program : {"Xvfb", "dbus-daemon"}) {
    if (QStandardPaths::findExecutable(QLatin1String(program)).isEmpty()) {
      return QStringLiteral("%1 is not installed").arg(QLatin1String(program));
    }
  }
  return QFileInfo(launcherProgram).isExecutable()
             ? QString()
             : QStringLiteral("at-spi2-core is not installed");
}

QProcessEnvironment AccessBus::environment() const {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const char *name : {"WAYLAND_DISPLAY", "AT_SPI_BUS_ADDRESS", "XAUTHORITY"}) {
    environment.remove(QLatin1String(name));
  }
  environment.insert(QStringLiteral("DISPLAY"), m_display);
  environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), m_sessionAddress);
  environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_folder.path());
  environment.insert(QStringLiteral("HOME"), m_folder.path());
  environment.insert(QStringLiteral("XDG_DATA_HOME"), m_folder.filePath(QStringLiteral("data")));
  environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
  environment.insert(QStringLiteral("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"), QStringLiteral("1"));
  environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
  return environment;
}

bool AccessBus::start() {
  return startScreen() && startBuses() && listen();
}

bool AccessBus::startScreen() {
  m_screen.start(QStringLiteral("Xvfb"), {"-displayfd", "1", "-screen", "0", "1400x1000x24",
                                          "-nolisten", "tcp", "-noreset"});
  const QString number = lineOf(m_screen);
  m_display = u':' + number;
  if (number.isEmpty()) m_problem = QString::fromUtf8(m_screen.readAllStandardError());
  return !number.isEmpty();
}

bool AccessBus::startBuses() {
  m_session.setProcessEnvironment(environment());
  m_session.start(QStringLiteral("dbus-daemon"),
                  {"--session", "--nofork", "--print-address=1",
                   QStringLiteral("--address=unix:path=") + m_folder.filePath("session")});
  m_sessionAddress = lineOf(m_session);
  m_launcher.setProcessEnvironment(environment());
  m_launcher.start(launcherProgram, {"--launch-immediately", "--a11y=1", "--screen-reader=1"});
  if (!m_sessionAddress.isEmpty() && m_launcher.waitForStarted(patience)) return true;
  m_problem = QString::fromUtf8(m_session.readAllStandardError());
  return false;
}

bool AccessBus::listen() {
  const QDBusConnection session =
      QDBusConnection::connectToBus(m_sessionAddress, QStringLiteral("access-session"));
  QDBusReply<QString> address;
  const bool isUp = QTest::qWaitFor(
      [&] {
        QDBusInterface bus("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", session);
        address = bus.call("GetAddress");
        return address.isValid();
      },
      patience);
  if (!isUp) {
    m_problem = address.error().message();
    return false;
  }
  m_bus = QDBusConnection::connectToBus(address.value(), QStringLiteral("access-a11y"));
  const QString events = QStringLiteral("org.a11y.atspi.Event.Object");
  m_bus.connect({}, {}, events, "Announcement", this, SLOT(announcement(QDBusMessage)));
  m_bus.connect({}, {}, events, "StateChanged", this, SLOT(stateChanged(QDBusMessage)));
  QDBusInterface registry("org.a11y.atspi.Registry", "/org/a11y/atspi/registry",
                          "org.a11y.atspi.Registry", m_bus);
  for (const char *kind : {"object:", "window:", "focus:"}) {
    registry.call("RegisterEvent", QString::fromLatin1(kind));
  }
  return true;
}

}  // namespace orvek::test
