// SPDX-License-Identifier: Apache-2.0
// Starts the printer and, as it looks for one, a message bus where nobody announces printers.

#include "tests/support/IppPrinter.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QFile>
#include <QStandardPaths>
#include <QThread>

#include "tests/support/CapturingFilter.h"
#include "tests/support/PrivateCups.h"

namespace orvek::test {
namespace {

constexpr int patience = 15000;
constexpr int pauseMilliseconds = 50;

QString program(const char *name) {
  return QStandardPaths::findExecutable(QString::fromLatin1(name),
                                        {QStringLiteral("/usr/sbin"), QStringLiteral("/usr/bin"),
                                         QStringLiteral("/sbin"), QStringLiteral("/bin")});
}

void stop(QProcess &process) {
  process.terminate();
  if (!process.waitForFinished(patience)) process.kill();
  process.waitForFinished(patience);
}

template <typename Condition>
bool comesTrue(const Condition &condition) {
  QElapsedTimer clock;
  for (clock.start(); clock.elapsed() < patience; QThread::msleep(pauseMilliseconds)) {
    if (condition()) return true;
  }
  return false;
}

QByteArray busConfiguration(const QString &socket) {
  return "<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN\" "
         "\"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">\n"
         "<busconfig><type>custom</type><listen>unix:path=" +
         socket.toUtf8() +
         "</listen><auth>EXTERNAL</auth><policy context=\"default\"><allow eavesdrop=\"true\"/>"
         "<allow send_destination=\"*\" eavesdrop=\"true\"/>"
         "<allow own=\"*\"/></policy></busconfig>\n";
}

}  // namespace

QString IppPrinter::obstacle() {
  for (const char *name : {"ippeveprinter", "dbus-daemon"}) {
    if (program(name).isEmpty()) {
      return QStringLiteral("%1 is not installed").arg(QString::fromLatin1(name));
    }
  }
  return {};
}

IppPrinter::IppPrinter() : m_port(freePort()) {
  startBus();
  startPrinter();
}

IppPrinter::~IppPrinter() {
  stop(m_printer);
  stop(m_bus);
}

void IppPrinter::startBus() {
  const QString socket = m_folder.filePath(QStringLiteral("bus"));
  const QString configuration = m_folder.filePath(QStringLiteral("bus.conf"));
  writeContents(configuration, busConfiguration(socket));
  m_bus.start(program("dbus-daemon"),
              {QStringLiteral("--nofork"), QStringLiteral("--config-file=") + configuration});
  EXPECT_TRUE(comesTrue([&] { return QFile::exists(socket); }))
      << m_bus.readAllStandardError().toStdString();
}

void IppPrinter::startPrinter() {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"),
                     QStringLiteral("unix:path=") + m_folder.filePath(QStringLiteral("bus")));
  m_printer.setProcessEnvironment(environment);
  m_printer.setProcessChannelMode(QProcess::MergedChannels);
  m_printer.start(program("ippeveprinter"),
                  {QStringLiteral("-r"), QStringLiteral("off"), QStringLiteral("-2"),
                   QStringLiteral("-s"), QStringLiteral("10,10"), QStringLiteral("-f"),
                   QStringLiteral("application/pdf,image/jpeg,image/pwg-raster"),
                   QStringLiteral("-n"), QStringLiteral("localhost"), QStringLiteral("-p"),
                   QString::number(m_port), QStringLiteral("-c"), program("true"),
                   QStringLiteral("-d"), m_folder.path(), QStringLiteral("Printer of a test")});
  EXPECT_TRUE(comesTrue([&] { return isListening(m_port); })) << m_printer.readAll().toStdString();
}

QString IppPrinter::uri() const {
  return QStringLiteral("ipp://localhost:%1/ipp/print").arg(m_port);
}

QMap<QString, QString> IppPrinter::waitForJob(int number) const {
  const QByteArray job = uri().toUtf8() + '/' + QByteArray::number(number);
  QMap<QString, QString> attributes;
  EXPECT_TRUE(comesTrue([&] {
    attributes = attributesOfJob("localhost", m_port, job);
    return attributes.value(QStringLiteral("job-state")) == QLatin1String("completed");
  })) << attributes.value(QStringLiteral("job-state")).toStdString();
  return attributes;
}

}  // namespace orvek::test
