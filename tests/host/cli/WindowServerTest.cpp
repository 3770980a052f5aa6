// SPDX-License-Identifier: Apache-2.0
// The window comes up at once and goes at once, whatever its print server does.

#include <gtest/gtest.h>
#include <unistd.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <array>

#include "host/cli/Window.h"
#include "host/dialog/NoticeBar.h"
#include "tests/support/CapturingFilter.h"
#include "tests/support/HostileServer.h"
#include "tests/support/Printers.h"
#include "tests/support/PrivateCups.h"

namespace orvek::test {
namespace {

/// The aim is three tenths of a second; a machine may have more to do than this.
constexpr qint64 atOnce = 1000;
constexpr int often = 10;
constexpr int patience = 20000;

/// The dialog; null where there is none, or where something stands before it.
QWidget *window() {
  QWidget *shown = QApplication::activeModalWidget();
  return shown != nullptr && shown->objectName() == QStringLiteral("printDialog") ? shown : nullptr;
}

void refusePassword() {
  QWidget *shown = QApplication::activeModalWidget();
  if (shown == nullptr || shown->objectName() != QStringLiteral("passwordDialog")) return;
  QTest::keyClick(shown, Qt::Key_Escape);
}

QPushButton *button(const char *name) {
  return window()->findChild<QPushButton *>(QLatin1String(name));
}

QString detail() {
  return window()->findChild<QLabel *>(QStringLiteral("printerDetail"))->accessibleName();
}

class WindowServer : public ::testing::Test {
 protected:
  WindowServer() {
    line.plugins = QStringList{QStringLiteral(ORVEK_BUNDLE_DIR)};
    line.files = QStringList{QStringLiteral(ORVEK_SOURCE_DIR "/samples/Finishing-Sample.ps")};
    line.destination = QStringLiteral("office");
    line.silent = true;
  }

  // Runs the window, in which `act` is called again and again until it has done what it had to.
  Status run(const std::function<bool()> &act) {
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
      refusePassword();
      if (window() == nullptr || !window()->isVisible()) return;
      if (m_shown < 0) m_shown = m_clock.elapsed();
      if (!act() && m_clock.elapsed() < patience) return;
      timer.stop();
      m_closing.start();
    });
    timer.start(often);
    m_clock.start();
    Status done = runWindow(line);
    m_ended = m_closing.isValid() ? m_closing.elapsed() : -1;
    return done;
  }

  static bool cancel() {
    QTest::mouseClick(button("cancelButton"), Qt::LeftButton);
    return true;
  }

  CommandLine line;
  /// Milliseconds from the start until the window is there.
  qint64 m_shown = -1;
  /// Milliseconds from the last act to the end.
  qint64 m_ended = -1;

 private:
  QElapsedTimer m_clock;
  QElapsedTimer m_closing;
};

TEST_F(WindowServer, IsNotWaitedForAtTheStartAndTheEnd) {
  for (const Hostility hostility : allHostilities()) {
    // That one is believed, and gives a printer description that is none: no window is for that.
    if (hostility == Hostility::WrongRequestId) continue;
    SCOPED_TRACE(nameOf(hostility));
    const HostileServer server(hostility);
    line.server = server.hostAndPort();
    m_shown = -1;
    EXPECT_TRUE(run(cancel));
    EXPECT_GE(m_shown, 0);
    EXPECT_LT(m_shown, atOnce);
    EXPECT_LT(m_ended, atOnce);
    RecordProperty(nameOf(hostility), static_cast<int>(m_shown));
  }
}

TEST_F(WindowServer, IsAskedWhileTheWindowSaysSo) {
  const HostileServer server(Hostility::Silence);
  line.server = server.hostAndPort();
  EXPECT_TRUE(run([] {
    if (!detail().startsWith(QStringLiteral("Asking"))) return false;
    EXPECT_EQ(detail(), QStringLiteral("Asking office…"));
    EXPECT_FALSE(button("printButton")->isEnabled());
    EXPECT_FALSE(window()->findChild<QWidget *>(QStringLiteral("pages"))->isEnabled());
    return cancel();
  }));
}

TEST_F(WindowServer, IsComplainedOfInTheWindowThatStays) {
  const HostileServer server(Hostility::Silence);
  line.server = server.hostAndPort();
  qputenv("ORVEK_PRINT_PATIENCE", "0.3");
  EXPECT_TRUE(run([] {
    const NoticeBar &notices = *window()->findChild<NoticeBar *>();
    if (!notices.isVisible()) return false;
    EXPECT_TRUE(notices.sentences().value(0).contains(QStringLiteral("stopped answering")));
    return cancel();
  }));
  qunsetenv("ORVEK_PRINT_PATIENCE");
}

class WindowLateServer : public WindowServer {
 protected:
  void SetUp() override {
    if (!PrivateCups::obstacle().isEmpty()) GTEST_SKIP() << PrivateCups::obstacle().toStdString();
    cups = std::make_unique<PrivateCups>();
    cups->addQueue(line.destination, orvekPPD(QStringLiteral("6180")));
    cups->pause();
  }

  bool comeLate() {
    if (!std::exchange(m_isAwake, true)) cups->resume();
    return true;
  }

  bool printOnceItIsThere() {
    if (detail().startsWith(QStringLiteral("Asking"))) {
      comeLate();
      return false;
    }
    if (!button("printButton")->isEnabled()) return false;
    QTest::mouseClick(button("printButton"), Qt::LeftButton);
    return true;
  }

  std::unique_ptr<PrivateCups> cups;

 private:
  bool m_isAwake = false;
};

TEST_F(WindowLateServer, GetsTheJobAsTheCommandLineHasIt) {
  line.copies = 3;
  line.options = {{QStringLiteral("OVKFolding"), QStringLiteral("Saddle")}};
  const Status done = run([this] { return printOnceItIsThere(); });
  ASSERT_TRUE(done) << done.failure().line().toStdString();
  EXPECT_EQ(cups->waitForJob(1), QStringLiteral("completed"));
  EXPECT_EQ(cups->jobAttributes(1).value(QStringLiteral("copies")), QStringLiteral("3"));
  EXPECT_EQ(cups->jobAttributes(1).value(QStringLiteral("OVKFolding")), QStringLiteral("Saddle"));
}

TEST_F(WindowLateServer, LosesNoTicketThatCanBeReadOnce) {
  std::array<int, 2> ends{};
  ASSERT_EQ(::pipe(ends.data()), 0);
  const QByteArray ticket = R"({"OVKGutter": 30})";
  ASSERT_EQ(::write(ends[1], ticket.constData(), static_cast<std::size_t>(ticket.size())),
            ticket.size());
  ::close(ends[1]);
  // As a shell names it that was told "--ticket <(...)".
  line.ticket = QStringLiteral("/dev/fd/%1").arg(ends[0]);
  const Status done = run([this] { return printOnceItIsThere(); });
  ::close(ends[0]);
  ASSERT_TRUE(done) << done.failure().line().toStdString();
  EXPECT_EQ(cups->waitForJob(1), QStringLiteral("completed"));
  EXPECT_EQ(cups->jobAttributes(1).value(QStringLiteral("OVKGutter")), QStringLiteral("30"));
}

TEST_F(WindowLateServer, EndsTheWindowWhereTheCommandLineIsWrong) {
  line.options = {{QStringLiteral("OVKFolding"), QStringLiteral("Nowhere")}};
  const Status done = run([this] { return comeLate(); });
  ASSERT_FALSE(done);
  EXPECT_EQ(done.failure().kind, FailureKind::Usage);
}

}  // namespace
}  // namespace orvek::test
