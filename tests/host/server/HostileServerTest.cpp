// SPDX-License-Identifier: Apache-2.0
// Every question to every kind of hostile server ends within its bound, in words.

#include "tests/support/HostileServer.h"

#include <cups/cups.h>
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <algorithm>
#include <functional>

#include "host/jobs/JobState.h"
#include "host/jobs/QueueJob.h"
#include "host/printers/Passwords.h"
#include "host/printers/PrinterList.h"
#include "host/printers/QueueAttributes.h"
#include "host/printers/QueuePPD.h"
#include "tests/support/CapturingFilter.h"
#include "tests/support/StandardInput.h"

namespace orvek::test {
namespace {

using namespace std::chrono_literals;

constexpr auto patience = 300ms;
/// A whole answer takes seven and a half times the patience at most; the rest is for a machine that
/// has more to do than this.
constexpr qint64 longestMilliseconds = 9000;

const QString queueName = QStringLiteral("office");

/// Those whose answers are taken for good at a certain question.
using Believed = std::vector<Hostility>;

/// What a question came to; without failure, nothing.
using Asked = std::function<Status(const ServerAccess &)>;

struct Case {
  Hostility hostility;
  bool hasFailed = false;
  QString line;
  qint64 milliseconds = 0;
};

void ask(Case &now, int from, const Asked &asked) {
  const HostileServer server(now.hostility, from);
  ServerAccess access{server.hostAndPort(), QStringLiteral("anna"), nullptr, patience};
  access.passwords =
      std::make_shared<PasswordSource>([](const PasswordQuestion &question, const auto *) {
        return Credentials{question.user, QStringLiteral("wrong")};
      });
  QElapsedTimer clock;
  clock.start();
  const Status status = asked(access);
  now.milliseconds = clock.elapsed();
  now.hasFailed = !status;
  if (now.hasFailed) now.line = status.failure().line();
}

bool isInWords(const QString &line) {
  if (line.isEmpty() || line.contains(u'\n')) return false;
  for (const char *noWords :
       {"Bad file descriptor", "Success", "successful", "Invalid argument", "-error-", "()"}) {
    if (line.contains(QLatin1String(noWords))) return false;
  }
  return true;
}

// All at once: most of the time is spent waiting.
void expectEndsOfAll(int from, const Asked &asked, const Believed &believed = {}) {
  std::vector<Case> cases;
  for (const Hostility hostility : allHostilities()) cases.push_back({hostility, false, {}, 0});
  std::vector<std::thread> threads;
  threads.reserve(cases.size());
  for (Case &now : cases) threads.emplace_back([&now, from, &asked] { ask(now, from, asked); });
  for (std::thread &thread : threads) thread.join();
  for (const Case &now : cases) {
    SCOPED_TRACE(nameOf(now.hostility));
    if (qEnvironmentVariableIsSet("ORVEK_TEST_TELL")) {
      std::printf("%-20s %5lld ms  %s\n", nameOf(now.hostility), now.milliseconds,
                  now.hasFailed ? qPrintable(now.line) : "(done)");
    }
    EXPECT_LT(now.milliseconds, longestMilliseconds);
    const bool isBelieved =
        std::find(believed.begin(), believed.end(), now.hostility) != believed.end();
    EXPECT_TRUE(now.hasFailed || isBelieved);
    EXPECT_TRUE(!now.hasFailed || isInWords(now.line)) << now.line.toStdString();
  }
}

template <typename Value>
Status statusOf(const Result<Value> &result) {
  return result ? Status() : Status(result.failure());
}

TEST(HostileServer, DoesNotHoldAListOfPrinters) {
  // libcups does not look at the number of an answer; it is the server's own all the same.
  expectEndsOfAll(IPP_OP_CUPS_GET_PRINTERS,
                  [](const ServerAccess &access) { return statusOf(listPrinters(access)); },
                  {Hostility::WrongRequestId});
}

TEST(HostileServer, DoesNotHoldASearchForAPrinter) {
  expectEndsOfAll(
      fromTheStart,
      [](const ServerAccess &access) { return statusOf(findPrinter(access, queueName)); },
      {Hostility::WrongRequestId});
}

TEST(HostileServer, DoesNotHoldASearchHalfWay) {
  // Where a queue does not tell of itself, the list of all, which is honest, has it.
  expectEndsOfAll(
      IPP_OP_GET_PRINTER_ATTRIBUTES,
      [](const ServerAccess &access) { return statusOf(findPrinter(access, queueName)); },
      allHostilities());
}

TEST(HostileServer, DoesNotHoldTheReadingOfSettings) {
  expectEndsOfAll(
      IPP_OP_GET_PRINTER_ATTRIBUTES,
      [](const ServerAccess &access) { return statusOf(readQueueSettings(access, queueName)); },
      {Hostility::WrongRequestId});
}

TEST(HostileServer, DoesNotHoldADescription) {
  const QTemporaryDir cache;
  // Whether it is one at all shows when it is opened.
  expectEndsOfAll(fromTheDescription,
                  [&cache](const ServerAccess &access) {
                    return statusOf(QueuePPD(cache.path()).fetch(access, queueName));
                  },
                  {Hostility::WrongRequestId, Hostility::Malformed, Hostility::NestedCollections});
}

class HostileServerToAJob : public ::testing::Test {
 protected:
  void SetUp() override { writeContents(document, postScriptDocument(1)); }

  JobRequest requestFor(const ServerAccess &access) const {
    JobRequest request;
    request.files = QStringList{document};
    request.queue = queueName;
    request.server = access.server;
    request.user = access.user;
    request.patience = access.patience;
    request.passwords = access.passwords;
    return request;
  }

  Status print(const ServerAccess &access) const {
    JobControl control;
    return statusOf(submitToQueue(requestFor(access), control));
  }

  QTemporaryDir folder;
  QString document = folder.filePath(QStringLiteral("document.ps"));
};

TEST_F(HostileServerToAJob, DoesNotHoldItsBeginning) {
  expectEndsOfAll(IPP_OP_CREATE_JOB, [this](const ServerAccess &access) { return print(access); });
}

TEST_F(HostileServerToAJob, DoesNotHoldItsDocuments) {
  expectEndsOfAll(IPP_OP_SEND_DOCUMENT,
                  [this](const ServerAccess &access) { return print(access); });
}

TEST_F(HostileServerToAJob, DoesNotHoldItsCancelling) {
  expectEndsOfAll(IPP_OP_CANCEL_JOB,
                  [](const ServerAccess &access) { return cancelJob(access, queueName, 1); },
                  {Hostility::WrongRequestId});
}

TEST_F(HostileServerToAJob, DoesNotHoldTheQuestionForTheQueuesLastJob) {
  expectEndsOfAll(IPP_OP_GET_JOBS, [](const ServerAccess &access) -> Status {
    auto talk = ServerTalk::open(access);
    if (!talk) return talk.failure();
    // Whatever it says, it tells of no such job.
    const bool isTold = hasMarkedJob(*talk.value(), queueName, QStringLiteral("some-mark"));
    return isTold ? Status() : Status(jobCancelled());
  });
}

TEST_F(HostileServerToAJob, IsToldToCancelWhatDidNotGoThrough) {
  const HostileServer server(Hostility::Malformed, IPP_OP_SEND_DOCUMENT);
  EXPECT_FALSE(print({server.hostAndPort(), {}, nullptr, patience}));
  QElapsedTimer clock;
  for (clock.start(); !server.wasCancelled() && clock.elapsed() < longestMilliseconds;) {
    std::this_thread::sleep_for(10ms);
  }
  EXPECT_TRUE(server.wasCancelled());
}

TEST_F(HostileServerToAJob, CannotPassAMalformedAnswerOffAsASuccess) {
  for (const Hostility hostility : {Hostility::Malformed, Hostility::WrongRequestId}) {
    const HostileServer server(hostility, IPP_OP_SEND_DOCUMENT);
    const Status printed = print({server.hostAndPort(), {}, nullptr, patience});
    ASSERT_FALSE(printed) << nameOf(hostility);
    EXPECT_EQ(printed.failure().line(),
              document + QStringLiteral(": the print server sent an answer that cannot be read"));
  }
}

class LatePassword : public HostileServerToAJob {
 protected:
  Result<JobOutcome> submit(const QStringList &files) {
    JobRequest request = requestFor({server.hostAndPort(), QStringLiteral("anna"), nullptr, 5s});
    request.files = files;
    request.passwords =
        std::make_shared<PasswordSource>([this](const PasswordQuestion &question, const auto *) {
          ++asked;
          return Credentials{question.user, QStringLiteral("secret")};
        });
    JobControl control;
    control.progress = [this](const JobProgress &now) { bytes = now.bytes; };
    return submitToQueue(request, control);
  }

  HostileServer server{Hostility::PasswordLate, IPP_OP_SEND_DOCUMENT};
  int asked = 0;
  qint64 bytes = 0;
};

TEST_F(LatePassword, IsUsedAndTheDocumentSentAgain) {
  const auto outcome = submit({document, document});
  ASSERT_TRUE(outcome) << outcome.failure().line().toStdString();
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(server.printed().count(contentsOf(document)), 2);
  EXPECT_EQ(outcome.value().bytes, 2 * contentsOf(document).size());
  EXPECT_EQ(bytes, outcome.value().bytes);
}

TEST_F(LatePassword, LosesNothingOfAShortStandardInput) {
  constexpr int blanks = 1 << 20;
  const QByteArray text = postScriptDocument(1) + QByteArray(blanks, ' ');
  const StandardInput input(text);
  const auto outcome = submit({});
  ASSERT_TRUE(outcome) << outcome.failure().line().toStdString();
  EXPECT_TRUE(server.printed().endsWith(text));
}

TEST_F(LatePassword, IsTooLateForALongStandardInput) {
  constexpr int blanks = 8 << 20;
  const StandardInput input(postScriptDocument(1) + QByteArray(blanks, ' '));
  const auto outcome = submit({});
  ASSERT_FALSE(outcome);
  EXPECT_EQ(outcome.failure().line(),
            QStringLiteral("standard input: the print server wants it once more; print it from a "
                           "file instead"));
}

TEST(SecondQuestionOfAList, IsNotPassedOver) {
  // libcups asks for the printers, then for what was said of them last.
  const HostileServer honest(Hostility::None);
  const auto queues = listPrinters({honest.hostAndPort(), {}, nullptr, patience});
  ASSERT_TRUE(queues) << queues.failure().line().toStdString();
  ASSERT_EQ(queues.value().size(), 1);
  EXPECT_EQ(queues.value().first().stateMessage, QStringLiteral("Warm"));
  const HostileServer server(Hostility::Malformed, fromTheSecondList);
  const auto lost = listPrinters({server.hostAndPort(), {}, nullptr, patience});
  ASSERT_FALSE(lost);
  EXPECT_EQ(lost.failure().line(),
            server.hostAndPort() +
                QStringLiteral(": the print server sent an answer that cannot be read"));
}

TEST(AbsentServer, IsNamedWithTheSystemsReason) {
  const auto queues = listPrinters({QStringLiteral("127.0.0.1:1"), {}, nullptr, patience});
  ASSERT_FALSE(queues);
  EXPECT_EQ(queues.failure().line(),
            QStringLiteral("127.0.0.1:1: no print server answers there (Connection refused)"));
}

}  // namespace
}  // namespace orvek::test
