// SPDX-License-Identifier: Apache-2.0
// The window comes up at once and goes at once, whatever its print server does.

#include <gtest/gtest.h>
#include <unistd.h>

#include <QApplication>
#include <QComboBox>
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

bool isComplaining() {
  return window()->findChild<NoticeBar *>()->isVisible();
}

/// For how long this program waits for servers, in seconds; until this object goes.
class Patience {
 public:
  explicit Patience(const char *seconds) { qputenv("ORVEK_PRINT_PATIENCE", seconds); }
  ~Patience() { qunsetenv("ORVEK_PRINT_PATIENCE"); }
  Patience(const Patience &) = delete;
  Patience &operator=(const Patience &) = delete;
};

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
  const Patience little("0.3");
  EXPECT_TRUE(run([] {
    const NoticeBar &notices = *window()->findChild<NoticeBar *>();
    if (!notices.isVisible()) return false;
    EXPECT_TRUE(notices.sentences().value(0).contains(QStringLiteral("stopped answering")));
    return cancel();
  }));
}

TEST_F(WindowServer, OffersToBeAskedAgainAndMayFailOnceMore) {
  const HostileServer server(Hostility::Silence);
  line.server = server.hostAndPort();
  const Patience little("0.3");
  int complaints = 0;
  EXPECT_TRUE(run([&complaints] {
    if (detail().startsWith(QStringLiteral("Asking")) || !isComplaining()) return false;
    EXPECT_TRUE(button("noticeAgain")->isVisible());
    if (++complaints == 2) return cancel();
    QTest::mouseClick(button("noticeAgain"), Qt::LeftButton);
    EXPECT_TRUE(detail().startsWith(QStringLiteral("Asking"))) << detail().toStdString();
    return false;
  }));
  EXPECT_EQ(complaints, 2);
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

  /// Prints once the server, which `wake` has answer, was asked again by the button for that.
  Status printAfterAnotherTry(const std::function<void()> &wake) {
    bool hasTried = false;
    return run([&] {
      if (!hasTried && isComplaining()) {
        wake();
        hasTried = true;
        QTest::mouseClick(button("noticeAgain"), Qt::LeftButton);
      }
      if (!hasTried || !button("printButton")->isEnabled()) return false;
      EXPECT_FALSE(isComplaining());
      QTest::mouseClick(button("printButton"), Qt::LeftButton);
      return true;
    });
  }

  void askForCopiesAndAFold() {
    line.copies = 3;
    line.options = {{QStringLiteral("OVKFolding"), QStringLiteral("Saddle")}};
  }

  void expectCopiesAndAFold() const {
    EXPECT_EQ(cups->waitForJob(1), QStringLiteral("completed"));
    EXPECT_EQ(cups->jobAttributes(1).value(QStringLiteral("copies")), QStringLiteral("3"));
    EXPECT_EQ(cups->jobAttributes(1).value(QStringLiteral("OVKFolding")), QStringLiteral("Saddle"));
  }

  std::unique_ptr<PrivateCups> cups;

 private:
  bool m_isAwake = false;
};

TEST_F(WindowLateServer, GetsTheJobAsTheCommandLineHasIt) {
  askForCopiesAndAFold();
  const Status done = run([this] { return printOnceItIsThere(); });
  ASSERT_TRUE(done) << done.failure().line().toStdString();
  expectCopiesAndAFold();
}

TEST_F(WindowLateServer, GetsTheJobAsTheCommandLineHasItAtAnotherTry) {
  askForCopiesAndAFold();
  const Patience little("0.5");
  const Status done = printAfterAnotherTry([this] {
    qunsetenv("ORVEK_PRINT_PATIENCE");
    cups->resume();
  });
  ASSERT_TRUE(done) << done.failure().line().toStdString();
  expectCopiesAndAFold();
}

TEST_F(WindowLateServer, IsAskedAgainWhereNobodyListenedAtFirst) {
  askForCopiesAndAFold();
  cups->resume();
  cups->stop();
  const Status done = printAfterAnotherTry([this] { cups->start(); });
  ASSERT_TRUE(done) << done.failure().line().toStdString();
  expectCopiesAndAFold();
}

TEST_F(WindowLateServer, GivesAnotherPrinterThanTheMissingOneWhatItCanTake) {
  cups->resume();
  cups->addQueue(QStringLiteral("other"), orvekPPD(QStringLiteral("2120")));
  line.destination = QStringLiteral("missing");
  line.copies = 3;
  line.options = {{QStringLiteral("Duplex"), QStringLiteral("Nowhere")}};
  QStringList said;
  const Status done = run([&] {
    auto *menu = window()->findChild<QComboBox *>(QStringLiteral("printerMenu"));
    const bool isListed = menu->findText(QStringLiteral("other")) >= 0;
    if (!isListed || detail().startsWith(QStringLiteral("Asking")) || !isComplaining()) {
      return false;
    }
    const QStringList now = window()->findChild<NoticeBar *>()->sentences();
    if (said.contains(now.value(0))) return false;
    said << now;
    if (said.size() == 2) return cancel();
    QTest::keyClick(menu, Qt::Key_O);
    auto *search = window()->findChild<QWidget *>(QStringLiteral("printerSearch"));
    QTest::keyClicks(search, QStringLiteral("ther"));
    QTest::keyClick(search, Qt::Key_Return);
    return false;
  });
  EXPECT_TRUE(done);
  EXPECT_TRUE(said.value(0).contains(QStringLiteral("missing"))) << said.value(0).toStdString();
  EXPECT_TRUE(said.value(1).contains(QStringLiteral("Nowhere"))) << said.value(1).toStdString();
}

TEST_F(WindowLateServer, EndsTheWindowAtAnotherTryTooWhereTheCommandLineIsWrong) {
  line.options = {{QStringLiteral("OVKFolding"), QStringLiteral("Nowhere")}};
  cups->resume();
  cups->stop();
  const Status done = printAfterAnotherTry([this] { cups->start(); });
  ASSERT_FALSE(done);
  EXPECT_EQ(done.failure().kind, FailureKind::Usage);
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
