// SPDX-License-Identifier: Apache-2.0
// A job that the desktop is told of, on a session bus of the test's own with a desktop of its own.

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "tests/support/PrivateCups.h"

namespace orvek::test {
namespace {

const QString notifications = QStringLiteral("org.freedesktop.Notifications");
const QString place = QStringLiteral("/org/freedesktop/Notifications");
const QString helper = QStringLiteral(ORVEK_BINARY_DIR "/libexec/orvek-job-notice");
constexpr int patience = 20000;

template <typename Condition>
bool waitFor(const Condition &condition) {
  QElapsedTimer clock;
  clock.start();
  while (!condition() && clock.elapsed() < patience) {
    QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
  }
  return condition();
}

/// What a desktop does: takes notices, and numbers them.
class Desktop : public QDBusVirtualObject {
 public:
  QString introspect(const QString &) const override { return {}; }

  bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override {
    if (message.member() != QLatin1String("Notify")) return false;
    notices << message.arguments();
    const uint replaced = notices.last().value(1).toUInt();
    bus.send(message.createReply(replaced > 0 ? replaced : number));
    return true;
  }

  QString summary(int notice) const { return notices.value(notice).value(3).toString(); }

  static constexpr uint number = 7;
  QList<QVariantList> notices;
};

class JobNotice : public ::testing::Test {
 protected:
  void SetUp() override {
    const QString daemon = QStandardPaths::findExecutable(QStringLiteral("dbus-daemon"));
    if (daemon.isEmpty()) GTEST_SKIP() << "dbus-daemon is not installed";
    if (!PrivateCups::obstacle().isEmpty()) GTEST_SKIP() << PrivateCups::obstacle().toStdString();
    cups = std::make_unique<PrivateCups>();
    ASSERT_EQ(cups->addQueue(QStringLiteral("office"),
                             QStringLiteral(ORVEK_SOURCE_DIR "/printers/Orvek-6180.ppd"))
                  .exitStatus,
              0);
    bus.start(daemon, {QStringLiteral("--session"), QStringLiteral("--nofork"),
                       QStringLiteral("--address=unix:path=") + socket});
    ASSERT_TRUE(waitFor([this] { return QFile::exists(socket); }));
  }

  void TearDown() override {
    notice.kill();
    notice.waitForFinished();
    QDBusConnection::disconnectFromBus(QStringLiteral("desktop"));
    bus.kill();
    bus.waitForFinished();
  }

  void haveDesktop() {
    QDBusConnection connection = session();
    ASSERT_TRUE(connection.registerVirtualObject(place, &desktop));
    ASSERT_TRUE(connection.registerService(notifications));
  }

  QDBusConnection session() const {
    return QDBusConnection::connectToBus(QStringLiteral("unix:path=") + socket,
                                         QStringLiteral("desktop"));
  }

  void tellOfJob(int job) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"),
                       QStringLiteral("unix:path=") + socket);
    notice.setProcessEnvironment(environment);
    notice.start(helper, {QStringLiteral("office"), QString::number(job), cups->socket(), {}});
  }

  void signal(const QString &name, const QVariantList &arguments) const {
    QDBusMessage message = QDBusMessage::createSignal(place, notifications, name);
    message.setArguments(arguments);
    session().send(message);
  }

  bool hasEnded() {
    return waitFor([this] { return notice.state() == QProcess::NotRunning; });
  }

  int submitHeldJob() const {
    cups->run(
        QStringLiteral("lp"),
        {QStringLiteral("-d"), QStringLiteral("office"), QStringLiteral("-H"),
         QStringLiteral("hold"), QStringLiteral(ORVEK_SOURCE_DIR "/samples/Finishing-Sample.pdf")});
    return 1;
  }

  QTemporaryDir folder;
  QString socket = folder.filePath(QStringLiteral("bus"));
  std::unique_ptr<PrivateCups> cups;
  Desktop desktop;
  QProcess bus;
  QProcess notice;
};

TEST_F(JobNotice, SaysWhereTheJobWentAndCancelsIt) {
  haveDesktop();
  const int job = submitHeldJob();
  tellOfJob(job);
  ASSERT_TRUE(waitFor([this] { return desktop.notices.size() == 1; }));
  EXPECT_EQ(desktop.summary(0), "Sent to office, job 1");
  EXPECT_EQ(desktop.notices[0].value(5).toStringList(), (QStringList{"cancel", "Cancel Job"}));
  signal(QStringLiteral("ActionInvoked"), {Desktop::number + 1, QStringLiteral("cancel")});
  signal(QStringLiteral("ActionInvoked"), {Desktop::number, QStringLiteral("cancel")});
  EXPECT_TRUE(hasEnded());
  EXPECT_EQ(cups->waitForJob(job), "canceled");
  ASSERT_EQ(desktop.notices.size(), 2);
  EXPECT_EQ(desktop.summary(1), "Job 1 on office was cancelled");
}

TEST_F(JobNotice, EndsWithItsNoticeAndLeavesTheJob) {
  haveDesktop();
  const int job = submitHeldJob();
  tellOfJob(job);
  ASSERT_TRUE(waitFor([this] { return desktop.notices.size() == 1; }));
  signal(QStringLiteral("NotificationClosed"), {Desktop::number, 1U});
  EXPECT_TRUE(hasEnded());
  EXPECT_EQ(cups->jobAttributes(job).value("job-state"), "pending-held");
}

TEST_F(JobNotice, EndsAtOnceWhereNobodyShowsIt) {
  tellOfJob(1);
  EXPECT_TRUE(hasEnded());
  EXPECT_EQ(notice.exitCode(), 0);
}

}  // namespace
}  // namespace orvek::test
