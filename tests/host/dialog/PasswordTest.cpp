// SPDX-License-Identifier: Apache-2.0
// A print server that wants a password, asked for in a window while the job waits on its thread.

#include "host/dialog/PasswordDialog.h"

#include <QLabel>
#include <QLineEdit>

#include "tests/host/dialog/DialogKit.h"
#include "tests/support/FrontServer.h"

using namespace orvek;
using namespace orvek::test;

namespace {

const QString queue = QStringLiteral("office");

class WindowPassword : public DialogTest {
 protected:
  void SetUp() override {
    const QString obstacle = PrivateCups::obstacle() + FrontServer::obstacle();
    if (!obstacle.isEmpty()) GTEST_SKIP() << obstacle.toStdString();
    cups = std::make_unique<PrivateCups>();
    const QString ppd = QStringLiteral(ORVEK_SOURCE_DIR "/printers/Orvek-6180.ppd");
    ASSERT_EQ(cups->addQueue(queue, ppd).exitStatus, 0);
    server = std::make_unique<FrontServer>(*cups, Guarded::Everything);
    prepare = [this](DialogSetup &setup) {
      setup.destination = queue;
      setup.jobRequest = [this](PrintSession &now) {
        JobRequest request = requestFor(now);
        request.user = QStringLiteral("anna");
        request.server = server->hostAndPort();
        request.passwords = passwords;
        return request;
      };
    };
    open();
  }

  static PasswordDialog *question() {
    return qobject_cast<PasswordDialog *>(QApplication::activeModalWidget());
  }

  // Waits for the question and types this; an empty text gives up.
  void answer(const QString &password) {
    ASSERT_TRUE(QTest::qWaitFor([] { return question() != nullptr; }, jobTimeout));
    PasswordDialog *asked = question();
    words << asked->findChild<QLabel *>(QStringLiteral("passwordWords"))->text();
    auto *field = asked->findChild<QLineEdit *>(QStringLiteral("passwordField"));
    QTest::keyClicks(field, password);
    QTest::keyClick(asked, password.isEmpty() ? Qt::Key_Escape : Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([&] { return question() != asked; }, jobTimeout));
  }

  bool hasNotice() {
    return QTest::qWaitFor([this] { return notices().isVisible(); }, jobTimeout);
  }

  std::unique_ptr<PrivateCups> cups;
  std::unique_ptr<FrontServer> server;
  PasswordWindow window;
  std::shared_ptr<PasswordSource> passwords = std::make_shared<PasswordSource>(
      [this](const auto &asked, const auto *cancelled) { return window.ask(asked, cancelled); });
  QStringList words;
};

TEST_F(WindowPassword, LetsTheJobThrough) {
  click("printButton");
  answer(QStringLiteral("secret"));
  ASSERT_TRUE(QTest::qWaitFor([this] { return !dialog->isVisible(); }, jobTimeout));
  ASSERT_TRUE(dialog->outcome());
  EXPECT_EQ(cups->jobAttributes(dialog->outcome()->jobId).value("job-originating-user-name"),
            QStringLiteral("anna"));
  EXPECT_TRUE(words.first().contains(server->hostAndPort()));
}

TEST_F(WindowPassword, IsAskedForAgainWhereItWasWrong) {
  click("printButton");
  answer(QStringLiteral("wrong"));
  answer(QStringLiteral("secret"));
  ASSERT_TRUE(QTest::qWaitFor([this] { return !dialog->isVisible(); }, jobTimeout));
  EXPECT_TRUE(dialog->outcome());
  EXPECT_NE(words[0], words[1]);
}

TEST_F(WindowPassword, IsSaidToBeWrongAfterThreeTimes) {
  click("printButton");
  for (const char *guess : {"one", "two", "three"}) answer(QString::fromLatin1(guess));
  ASSERT_TRUE(hasNotice());
  EXPECT_TRUE(notices().sentences().join(' ').contains("given 3 times"));
  EXPECT_TRUE(dialog->isVisible());
}

TEST_F(WindowPassword, NotGivenLeavesTheWindowAsItWas) {
  session->pick(QStringLiteral("OVKStapling"), QStringLiteral("Dual"));
  click("printButton");
  answer(QString());
  ASSERT_TRUE(hasNotice());
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_TRUE(find<QPushButton>("printButton")->isEnabled());
  EXPECT_EQ(session->marks().marked("OVKStapling"), QStringLiteral("Dual"));
  EXPECT_TRUE(cups->jobAttributes(1).isEmpty());
}

TEST_F(WindowPassword, IsNotWaitedForOnceTheWindowGoes) {
  click("printButton");
  ASSERT_TRUE(QTest::qWaitFor([] { return question() != nullptr; }, jobTimeout));
  QElapsedTimer clock;
  clock.start();
  dialog.reset();
  EXPECT_LT(clock.elapsed(), 5000);
  QCoreApplication::processEvents();
  EXPECT_EQ(question(), nullptr);
}

TEST_F(WindowPassword, IsKeptForTheNextJob) {
  click("printButton");
  answer(QStringLiteral("secret"));
  ASSERT_TRUE(QTest::qWaitFor([this] { return !dialog->isVisible(); }, jobTimeout));
  showWindow();
  click("printButton");
  ASSERT_TRUE(QTest::qWaitFor([this] { return !dialog->isVisible(); }, jobTimeout));
  EXPECT_EQ(words.size(), 1);
}

TEST_F(WindowPassword, CanBeAskedForOnTheWindowsOwnThread) {
  QTimer::singleShot(50, qApp, [this] { answer(QStringLiteral("secret")); });
  const auto given = window.ask({server->hostAndPort(), QStringLiteral("anna")}, nullptr);
  ASSERT_TRUE(given);
  EXPECT_EQ(given.value().user, QStringLiteral("anna"));
  EXPECT_EQ(given.value().password, QStringLiteral("secret"));
}

}  // namespace
