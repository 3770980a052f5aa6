// SPDX-License-Identifier: Apache-2.0
// The program before a real print server of its own.

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "tests/host/cli/Program.h"
#include "tests/support/PrivateCups.h"

namespace orvek::test {
namespace {

const QString document = QStringLiteral(ORVEK_SOURCE_DIR "/samples/Finishing-Sample.ps");

class ProgramQueue : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!PrivateCups::obstacle().isEmpty()) GTEST_SKIP() << PrivateCups::obstacle().toStdString();
    cups = std::make_unique<PrivateCups>();
    ASSERT_EQ(cups->addQueue("office", testPpd("finisher.ppd"), {"-L", "Room 5"}).exitStatus, 0);
    ASSERT_EQ(cups->run("lpadmin", {"-d", "office"}).exitStatus, 0);
  }

  ProgramRun run(const QStringList &arguments) {
    return runProgram(arguments, {{"XDG_CACHE_HOME=" + cache.path()}, {}, {}});
  }

  QByteArray printed(const QString &queue = QStringLiteral("office")) {
    QFile file(cups->printedBy(queue));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  QTemporaryDir cache;
  std::unique_ptr<PrivateCups> cups;
};

TEST_F(ProgramQueue, IsListedWithStateLocationAndDefault) {
  const ProgramRun list = run({"--list-printers"});
  EXPECT_EQ(list.status, 0) << list.errors.constData();
  EXPECT_EQ(list.output, "office\tIdle\tRoom 5\tdefault\n");
}

TEST_F(ProgramQueue, GivesItsPpdAndTheUsersSavedOptions) {
  ASSERT_EQ(cups->run("lpoptions", {"-p", "office", "-o", "OVKPunching=2"}).exitStatus, 0);
  const ProgramRun session = run({"--headless", "--inspect"});
  ASSERT_EQ(session.status, 0) << session.errors.constData();
  const QJsonObject marks = session.json().value("marks").toObject();
  EXPECT_EQ(marks.value("OVKPunching"), "2");
  EXPECT_EQ(session.json().value("modelNumber"), "6180");
}

TEST_F(ProgramQueue, TakesAJobWithWhatThePanelChose) {
  const ProgramRun job = run({"--headless", "--print", "--do", "foldingPopup=Saddle", "-n", "2",
                              "-t", "Report", document});
  ASSERT_EQ(job.status, 0) << job.errors.constData();
  EXPECT_EQ(job.output, "request id is office-1 (1 file(s))\n");
  EXPECT_EQ(cups->waitForJob(1), "completed");
  EXPECT_EQ(cups->jobAttributes(1).value("copies"), "2");
  EXPECT_EQ(cups->jobAttributes(1).value("job-name"), "Report");
  EXPECT_TRUE(printed().contains("%%BeginFeature: *OVKFolding Saddle"))
      << cups->log().toStdString();
}

TEST_F(ProgramQueue, ShowsWhatTheUsersWordsStandFor) {
  ASSERT_EQ(cups->run("lpoptions", {"-p", "office", "-o", "output-bin=upper"}).exitStatus, 0);
  const ProgramRun session = run({"--headless", "--inspect", "-o", "media=A3"});
  ASSERT_EQ(session.status, 0) << session.errors.constData();
  const QJsonObject marks = session.json().value("marks").toObject();
  EXPECT_EQ(marks.value("OutputBin"), "Upper");
  EXPECT_EQ(marks.value("PageSize"), "A3");
}

TEST_F(ProgramQueue, GetsNoWordThatSomethingPickedContradicts) {
  ASSERT_EQ(cups->run("lpoptions", {"-p", "office", "-o", "output-bin=upper"}).exitStatus, 0);
  const ProgramRun job =
      run({"--headless", "--print", "-o", "media=A3", "--do", "paperDestPopup=Booklet", document});
  ASSERT_EQ(job.status, 0) << job.errors.constData();
  EXPECT_FALSE(cups->jobAttributes(1).contains("output-bin"));
  EXPECT_EQ(cups->jobAttributes(1).value("OutputBin"), "Booklet");
  EXPECT_EQ(cups->jobAttributes(1).value("media"), "A3");
}

TEST_F(ProgramQueue, GetsCustomValuesOfSeveralParameters) {
  cups->addQueue("values", ORVEK_SOURCE_DIR "/tests/host/ppd/files/values.ppd");
  const ProgramRun job = run({"--headless", "--print", "-d", "values", "-o",
                              "Mark={Text=\"Top secret\" Angle=45 Size=20.5}", "-o",
                              "Gamma=Custom.1.5", "-o", "Pin=Custom.0123", document});
  ASSERT_EQ(job.status, 0) << job.errors.constData();
  EXPECT_EQ(cups->waitForJob(1), "completed");
  const QByteArray code = printed("values");
  EXPECT_TRUE(code.contains("*CustomMark True\n(Top secret)\n45\n20.5\n")) << code.constData();
  EXPECT_TRUE(code.contains("*CustomGamma True\n1.5\n"));
  EXPECT_TRUE(code.contains("*CustomPin True\n(0123)\n"));
}

TEST_F(ProgramQueue, HasNoPanelWithoutAPpd) {
  cups->addQueue("raw", {});
  const ProgramRun run = this->run({"--headless", "-d", "raw", "--inspect"});
  EXPECT_EQ(run.status, 0) << run.errors.constData();
  EXPECT_TRUE(run.json().value("panel").isNull());
  EXPECT_TRUE(run.json().value("controls").toObject().isEmpty());
}

TEST_F(ProgramQueue, KeepsTheJobsNumberToItselfWhereAskedTo) {
  EXPECT_EQ(run({"--headless", "--print", "-s", document}).output, "");
}

TEST_F(ProgramQueue, KeepsTheStateAloneOnTheStandardOutput) {
  const ProgramRun job = run({"--headless", "--print", "--inspect", document});
  EXPECT_FALSE(job.json().isEmpty());
  EXPECT_TRUE(job.errors.contains("request id is office-1"));
}

TEST_F(ProgramQueue, GetsNoJobThatGoesIntoAFile) {
  const QString file = cache.filePath("out.ps");
  const ProgramRun job = run({"--headless", "--print", "--output", file, document});
  ASSERT_EQ(job.status, 0) << job.errors.constData();
  EXPECT_EQ(job.output, "");
  EXPECT_GT(QFileInfo(file).size(), 0);
  EXPECT_TRUE(cups->jobAttributes(1).isEmpty());
}

TEST_F(ProgramQueue, LendsItsSavedOptionsToAJobThatGoesIntoAFile) {
  cups->run("lpoptions", {"-p", "office", "-o", "number-up=2", "-o", "page-ranges=1-3"});
  const QString path = cache.filePath("out.ps");
  const auto sides = [&](const QStringList &options) {
    const ProgramRun job = run(QStringList{"--headless", "--print", "--output", path} + options +
                               QStringList{document});
    EXPECT_EQ(job.status, 0) << job.errors.constData();
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().count("\n%%Page: ") : -1;
  };
  EXPECT_EQ(sides({}), 3);
  EXPECT_EQ(sides({"-o", "number-up=4"}), 2);
}

TEST_F(ProgramQueue, IsNotAskedForAJobThatGoesIntoAFile) {
  const QString file = cache.filePath("out.ps");
  const ProgramRun job = runProgram(
      {"--headless", "--ppd", testPpd("finisher.ppd"), "--print", "--output", file, document},
      {{"CUPS_SERVER=127.0.0.1:1"}, {}, {}});
  EXPECT_EQ(job.status, 0) << job.errors.constData();
  EXPECT_EQ(job.output, "");
  EXPECT_GT(QFileInfo(file).size(), 0);
}

// Takes connections, as the system does for it, and never answers one.
class SilentServer {
 public:
  SilentServer() : m_socket(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto *const place = reinterpret_cast<sockaddr *>(&address);
    m_listens = bind(m_socket, place, size) == 0 && listen(m_socket, SOMAXCONN) == 0 &&
                getsockname(m_socket, place, &size) == 0;
    m_port = ntohs(address.sin_port);
  }
  ~SilentServer() { close(m_socket); }
  SilentServer(const SilentServer &) = delete;
  SilentServer &operator=(const SilentServer &) = delete;

  bool listens() const { return m_listens; }
  QString address() const { return QStringLiteral("127.0.0.1:%1").arg(m_port); }

  bool wasAsked() const {
    pollfd waiting{m_socket, POLLIN, 0};
    return poll(&waiting, 1, 0) > 0;
  }

 private:
  int m_socket;
  bool m_listens = false;
  int m_port = 0;
};

// The tool that runs the filters would ask one about queues.
TEST_F(ProgramQueue, IsNotAskedByTheFiltersEither) {
  const SilentServer server;
  ASSERT_TRUE(server.listens());
  const QString file = cache.filePath("out.ps");
  const ProgramRun job = runProgram(
      {"--headless", "--ppd", testPpd("finisher.ppd"), "--print", "--output", file, document},
      {{"CUPS_SERVER=" + server.address()}, {}, {}});
  EXPECT_EQ(job.status, 0) << job.errors.constData();
  EXPECT_GT(QFileInfo(file).size(), 0);
  EXPECT_FALSE(server.wasAsked());
}

TEST_F(ProgramQueue, IsNotAskedForTheSakeOfThePreviewEither) {
  const SilentServer server;
  ASSERT_TRUE(server.listens());
  QFile notes(cache.filePath("notes.txt"));
  ASSERT_TRUE(notes.open(QIODevice::WriteOnly) && notes.write("notes\n") > 0);
  notes.close();
  const ProgramRun run = runProgram({"--headless", "--ppd", testPpd("finisher.ppd"), "--inspect",
                                     "--output", cache.filePath("out.ps"), notes.fileName()},
                                    {{"CUPS_SERVER=" + server.address()}, {}, {}});
  EXPECT_EQ(run.json().value("preview")["sheets"].toInt(), 1) << run.errors.constData();
  EXPECT_FALSE(server.wasAsked());
}

TEST_F(ProgramQueue, GetsNoJobWithoutPrint) {
  ASSERT_EQ(run({"--headless", document}).status, 0);
  EXPECT_TRUE(cups->jobAttributes(1).isEmpty());
}

TEST_F(ProgramQueue, IsNamedWhereItDoesNotExist) {
  const ProgramRun job = run({"--headless", "-d", "cellar", "--inspect"});
  EXPECT_EQ(job.status, 1);
  EXPECT_EQ(job.output, "");
  ASSERT_EQ(job.errorLines().size(), 1) << job.errors.constData();
  EXPECT_TRUE(job.errorLines().first().contains("cellar"));
}

TEST_F(ProgramQueue, IsMissedInOneLineWhenTheServerIsGone) {
  cups->stop();
  const ProgramRun job = run({"--headless", "--inspect"});
  EXPECT_EQ(job.status, 1);
  EXPECT_EQ(job.errorLines().size(), 1) << job.errors.constData();
}

}  // namespace
}  // namespace orvek::test
