// SPDX-License-Identifier: Apache-2.0
// Five sessions: a ticket written, a preset saved, a job into a file, a job on a queue, the window
// as a picture.

#include "tests/faults/FaultSession.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QProcess>
#include <QRegularExpression>
#include <QThread>

namespace orvek::test {
namespace {

const QString document = QStringLiteral(ORVEK_SOURCE_DIR "/samples/Finishing-Sample.ps");

QByteArray contentsOf(const QString &path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Of the log, or of a library that says what it will do without.
bool isLogLine(const QByteArray &line) {
  static const QRegularExpression log(
      QStringLiteral("\\A(\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d|Fontconfig )"));
  return log.match(QString::fromUtf8(line)).hasMatch();
}

// Two outputs of one job may differ in their dates.
QByteArray withoutDates(const QByteArray &bytes) {
  static const QRegularExpression dates(QStringLiteral("%%CreationDate:[^\\n]*|D:\\d{14}[^)\\n]*"));
  return QString::fromLatin1(bytes).remove(dates).toLatin1();
}

}  // namespace

FaultSession::FaultSession(SessionKind kind) : m_kind(kind) {
  if (kind == SessionKind::Queue) {
    m_cups = std::make_unique<PrivateCups>();
    EXPECT_EQ(m_cups->addQueue("office", testPpd("finisher.ppd")).exitStatus, 0);
  }
  if (kind == SessionKind::Preset) {
    // An older one has other choices.
    runProgram({"--headless", "--ppd", testPpd("finisher.ppd"), "--do", "foldingPopup=Saddle",
                "--save-preset", "kept"},
               {environment()});
    m_old = saved();
    EXPECT_FALSE(m_old.isEmpty());
  } else {
    m_old = "old\n";
  }
  QElapsedTimer clock;
  begin();
  clock.start();
  const ProgramRun usual = run();
  m_usual = clock.elapsed();
  EXPECT_EQ(usual.status, 0) << usual.errors.constData();
  m_new = saved();
  EXPECT_NE(m_new, m_old);
}

QString FaultSession::obstacle(SessionKind kind) {
#ifdef ORVEK_SANITIZED
  return QStringLiteral("the sanitizer must be the first library of a program");
#endif
  return kind == SessionKind::Queue ? PrivateCups::obstacle() : QString();
}

QString FaultSession::savedFile() const {
  if (m_kind == SessionKind::Queue) return {};
  if (m_kind != SessionKind::Preset) return disk() + "/made";
  const QDir presets(disk() + "/data/orvek-print/presets");
  const QStringList files = presets.entryList({"*.json"}, QDir::Files);
  return files.isEmpty() ? presets.filePath("kept.json") : presets.filePath(files.first());
}

QByteArray FaultSession::saved() const {
  return m_kind == SessionKind::Queue ? QByteArray() : contentsOf(savedFile());
}

QStringList FaultSession::environment() const {
  return {"XDG_DATA_HOME=" + disk() + "/data", "XDG_CACHE_HOME=" + disk() + "/cache",
          // A server that lost a message is waited for this long.
          "ORVEK_PRINT_PATIENCE=2"};
}

QStringList FaultSession::arguments() const {
  const QStringList onPpd{"--headless", "--ppd", testPpd("finisher.ppd"), "--do",
                          "staplingPopup=Front"};
  const QString made = disk() + "/made";
  switch (m_kind) {
    case SessionKind::Ticket:
      return onPpd + QStringList{"--ticket-out", made};
    case SessionKind::Preset:
      return onPpd + QStringList{"--save-preset", "kept"};
    case SessionKind::Output:
      return onPpd + QStringList{"--print", "--output", made, document};
    case SessionKind::Queue:
      return {"--headless", "-d", "office", "--print", document};
    default:
      return onPpd + QStringList{"--screenshot", made};
  }
}

void FaultSession::begin() const {
  QDir().mkpath(disk());
  QDir(disk() + "/cache").removeRecursively();
  if (m_kind == SessionKind::Queue) return;
  const QString path = savedFile();
  // What a killed run left beside it goes as well.
  const QFileInfo place(path);
  for (const QString &beside : place.dir().entryList({place.fileName() + "*"}, QDir::Files)) {
    place.dir().remove(beside);
  }
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(m_old) == m_old.size());
}

ProgramRun FaultSession::run(const QStringList &more) {
  begin();
  return runProgram(arguments(), {environment() + more});
}

void FaultSession::killAfter(int milliseconds) {
  begin();
  QProcess program;
  QProcessEnvironment all = QProcessEnvironment::systemEnvironment();
  for (const QString &entry : environment()) {
    all.insert(entry.section('=', 0, 0), entry.section('=', 1));
  }
  program.setProcessEnvironment(all);
  program.start(QStringLiteral(ORVEK_BINARY_DIR "/bin/orvek-print"), arguments());
  EXPECT_TRUE(program.waitForStarted());
  QThread::msleep(static_cast<unsigned long>(milliseconds));
  program.kill();
  EXPECT_TRUE(program.waitForFinished());
}

// The disk is there for the commands alone: what they leave on it is carried to another.
ProgramRun FaultSession::runOnFullDisk(int pages, const QStringList &command) {
  constexpr int pageBytes = 4096;
  begin();
  const QString script =
      QStringLiteral(
          "cd %1 && rm -rf kept && cp -a disk kept && mount -t tmpfs -o size=1m none disk &&\n"
          "cp -a kept/. disk && rm -r kept && mkdir disk/temporary || exit 77\n"
          "cat /dev/zero >disk/fill 2>/dev/null; truncate -s -%2 disk/fill\n"
          "TMPDIR=%1/disk/temporary \"$@\"; status=$?; rm -r disk/fill disk/temporary\n"
          "cp -a disk kept; exit $status")
          .arg(m_folder.path())
          .arg(pages * pageBytes);
  const QStringList session =
      QStringList{QStringLiteral(ORVEK_BINARY_DIR "/bin/orvek-print")} + arguments();
  Surroundings surroundings{environment()};
  surroundings.program = QStringLiteral("unshare");
  const ProgramRun run = runProgram(
      QStringList{"-rm", "sh", "-c", script, "sh"} + (command.isEmpty() ? session : command),
      surroundings);
  if (QFile::exists(m_folder.filePath("kept"))) {
    QDir(disk()).removeRecursively();
    QDir(m_folder.path()).rename("kept", "disk");
  }
  return run;
}

// A picture may show other letters, where those that were wanted can't be read.
bool FaultSession::isNew(const QByteArray &bytes) const {
  if (m_kind == SessionKind::Output) return withoutDates(bytes) == withoutDates(m_new);
  if (m_kind != SessionKind::Window) return bytes == m_new;
  return bytes.startsWith(m_new.left(8)) && bytes.endsWith(m_new.right(8));
}

QString FaultSession::problemOfFiles() const {
  if (m_kind == SessionKind::Queue) return {};
  const QByteArray now = saved();
  if (now == m_old || isNew(now)) return {};
  return QStringLiteral("what was saved is neither the older nor the newer: %1 bytes")
      .arg(now.size());
}

QString FaultSession::problemOfJob(const ProgramRun &run) const {
  static const QRegularExpression id(QStringLiteral("request id is office-(\\d+)"));
  const auto found = id.match(QString::fromUtf8(run.output));
  if (!found.hasMatch()) return QStringLiteral("no job was told");
  const auto job = m_cups->jobAttributes(found.captured(1).toInt());
  return job.isEmpty() ? QStringLiteral("there is no such job") : QString();
}

QString FaultSession::problemOf(const ProgramRun &run) {
  if (run.status < 0) return QStringLiteral("it did not end by itself");
  const qsizetype said = run.errorLines().size();
  for (const QByteArray &line : run.errors.split('\n')) {
    if (line.isEmpty() || line.startsWith("orvek-print: ") || isLogLine(line)) continue;
    return QStringLiteral("it said beside: ") + QString::fromUtf8(line);
  }
  if (const QString files = problemOfFiles(); !files.isEmpty()) return files;
  if (run.status != 0) {
    return said == 1 ? QString() : QStringLiteral("it said %1 lines of errors").arg(said);
  }
  // One that is installed and won't do is said and left out; no job needs it.
  const bool isOfPlugin = said == 1 && run.errorLines().first().contains(".bundle");
  if (said != 0 && !isOfPlugin) return QStringLiteral("it said an error and ended well");
  if (m_kind == SessionKind::Queue) return problemOfJob(run);
  return isNew(saved()) ? QString() : QStringLiteral("it ended well and saved nothing");
}

}  // namespace orvek::test
