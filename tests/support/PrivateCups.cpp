// SPDX-License-Identifier: Apache-2.0
// Writes a configuration, starts the scheduler with it, and asks it about its jobs.

#include "tests/support/PrivateCups.h"

#include "platform/printing/PPD.h"
// clang-format off
#include <cups/cups.h>
// clang-format on

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>
#include <QUrl>
#include <array>
#include <csignal>

#include "tests/support/CapturingFilter.h"

namespace orvek::test {
namespace {

constexpr int patience = 30000;
constexpr int pauseMilliseconds = 20;

const QStringList programFolders{QStringLiteral("/usr/sbin"), QStringLiteral("/usr/bin"),
                                 QStringLiteral("/sbin"), QStringLiteral("/bin")};

/// The same folder for every server of a process: libcups reads HOME and its own root only once.
QString folderOfThisProcess() {
  static const QTemporaryDir folder;
  return folder.path();
}

QString program(const QString &name) {
  return QStandardPaths::findExecutable(name, programFolders);
}

/// Filters and backends don't run as root; the server changes to this user for them.
QByteArray unprivilegedUser() {
  return ::geteuid() == 0 ? QByteArray("User lp\nGroup lp\n") : QByteArray();
}

void linkAllOf(const QDir &from, const QDir &to) {
  for (const QString &name : from.entryList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot)) {
    QFile::link(from.filePath(name), to.filePath(name));
  }
}

QByteArray filesConfiguration(const QByteArray &folder) {
  return "FileDevice Yes\nSandboxing relaxed\nFatalErrors config\nSystemGroup root\n"
         "PrintcapFormat bsd\nPrintcap\n" +
         unprivilegedUser() + "ServerRoot " + folder + "/etc\nServerBin " + folder +
         "/bin\nStateDir " + folder + "/run\nCacheDir " + folder + "/cache\nRequestRoot " + folder +
         "/spool\nTempDir " + folder + "/spool/tmp\nErrorLog " + folder + "/error_log\nAccessLog " +
         folder + "/access_log\nPageLog " + folder + "/page_log\n";
}

const QByteArray openPolicy =
    "JobPrivateAccess all\nJobPrivateValues none\nSubscriptionPrivateAccess all\n"
    "SubscriptionPrivateValues none\n<Limit All>\nOrder deny,allow\n</Limit>\n";

QByteArray serverConfiguration(const QByteArray &socket, int port, const PrivateCupsSetup &setup) {
  return "Listen " + socket + "\nListen 127.0.0.1:" + QByteArray::number(port) +
         "\nLogLevel info\nBrowsing No\nWebInterface No\nMaxJobs 0\nMaxLogSize 0\n"
         "PreserveJobHistory Yes\nPreserveJobFiles No\nErrorPolicy abort-job\n"
         "<Location />\n" +
         "Order allow,deny\nAllow all\n" +
         "</Location>\n"
         "<Location /admin>\nOrder allow,deny\nAllow all\n</Location>\n"
         "<Policy default>\n" +
         (setup.policy.isEmpty() ? openPolicy : setup.policy) + "</Policy>\n";
}

Ran finish(QProcess &process, const QByteArray &input) {
  process.write(input);
  process.closeWriteChannel();
  const bool ended = process.waitForFinished(patience);
  if (!ended) process.kill();
  return {ended ? process.exitCode() : -1, QString::fromUtf8(process.readAllStandardOutput()),
          QString::fromUtf8(process.readAllStandardError())};
}

/// Attributes come in groups of one job each; a test asks about one job only.
QMap<QString, QString> attributesOf(ipp_t *response) {
  QMap<QString, QString> attributes;
  std::array<char, 4096> text{};
  for (auto *attribute = ippFirstAttribute(response); attribute;
       attribute = ippNextAttribute(response)) {
    if (ippGetGroupTag(attribute) != IPP_TAG_JOB || !ippGetName(attribute)) continue;
    ippAttributeString(attribute, text.data(), text.size());
    attributes.insert(QString::fromUtf8(ippGetName(attribute)), QString::fromUtf8(text.data()));
  }
  return attributes;
}

}  // namespace

int freePort() {
  const int listener = ::socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  EXPECT_EQ(::bind(listener, reinterpret_cast<sockaddr *>(&address), size), 0);
  ::getsockname(listener, reinterpret_cast<sockaddr *>(&address), &size);
  ::close(listener);
  return ntohs(address.sin_port);
}

bool isListening(int port) {
  const int client = ::socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  address.sin_port = htons(static_cast<in_port_t>(port));
  const bool isOpen =
      ::connect(client, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
  ::close(client);
  return isOpen;
}

QString PrivateCups::obstacle() {
  for (const char *name : {"cupsd", "lpadmin", "lp"}) {
    if (program(QString::fromLatin1(name)).isEmpty()) {
      return QStringLiteral("%1 is not installed").arg(QString::fromLatin1(name));
    }
  }
  return {};
}

PrivateCups::PrivateCups(const PrivateCupsSetup &setup)
    : m_folder(folderOfThisProcess()), m_port(freePort()) {
  m_folder.removeRecursively();
  for (const char *name : {"etc", "run", "cache", "spool", "spool/tmp", "home", "printed"}) {
    m_folder.mkpath(QString::fromLatin1(name));
  }
  QFile::setPermissions(m_folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                             QFile::ReadOther | QFile::ExeOther);
  installPrograms(setup.hasDriver);
  writeConfiguration(setup);
  pointEnvironmentHere();
  start();
}

PrivateCups::~PrivateCups() {
  stop();
  for (auto saved = m_savedEnvironment.cbegin(); saved != m_savedEnvironment.cend(); ++saved) {
    if (saved.value().isNull()) {
      qunsetenv(saved.key().constData());
    } else {
      qputenv(saved.key().constData(), saved.value());
    }
  }
  cupsSetServer(nullptr);
}

/// The machine's own by their names, and a copy of ours: a build tree may be out of reach for the
/// user that filters run as.
void PrivateCups::installPrograms(bool withDriver) {
  const QDir machine(QStringLiteral(ORVEK_CUPS_SERVERBIN));
  const QDir own(m_folder.filePath(QStringLiteral("bin")));
  const QDir filters(own.filePath(QStringLiteral("filter")));
  const QString driver = filters.filePath(QStringLiteral("orvek-booklet"));
  installKeepingBackend();
  filters.mkpath(QStringLiteral("."));
  linkAllOf(QDir(machine.filePath(QStringLiteral("filter"))), filters);
  linkAllOf(machine, own);
  QFile::remove(driver);
  if (!withDriver) return;
  ASSERT_TRUE(QFile::copy(QStringLiteral(ORVEK_BOOKLET_FILTER), driver));
}

/// As a backend does that prints to a device: a job that no filter has touched comes as a file, and
/// is sent as often as there are copies.
void PrivateCups::installKeepingBackend() {
  const QDir backends(m_folder.filePath(QStringLiteral("bin/backend")));
  backends.mkpath(QStringLiteral("."));
  linkAllOf(QDir(QStringLiteral(ORVEK_CUPS_SERVERBIN "/backend")), backends);
  const QString keep = backends.filePath(QStringLiteral("keep"));
  writeContents(keep,
                "#!/bin/sh\n[ $# -gt 0 ] || { echo 'direct keep \"\" \"\"'; exit 0; }\n"
                "copies=1; [ -z \"$6\" ] || copies=$4\n"
                "for i in $(seq $copies); do cat ${6:+\"$6\"}; done > \"${DEVICE_URI#keep:}\"\n");
  // What only its owner may run is run as root, who may write everywhere.
  QFile::setPermissions(keep, QFile::ReadOwner | QFile::ExeOwner);
}

void PrivateCups::writeConfiguration(const PrivateCupsSetup &setup) {
  writeContents(serverRoot() + QStringLiteral("/cups-files.conf"),
                filesConfiguration(m_folder.path().toUtf8()));
  writeContents(serverRoot() + QStringLiteral("/cupsd.conf"),
                serverConfiguration(socket().toUtf8(), m_port, setup));
  if (!setup.printers.isEmpty()) {
    writeContents(serverRoot() + QStringLiteral("/printers.conf"), setup.printers);
  }
}

void PrivateCups::pointEnvironmentHere() {
  const QMap<QByteArray, QByteArray> environment{{"CUPS_SERVER", socket().toUtf8()},
                                                 {"CUPS_SERVERROOT", serverRoot().toUtf8()},
                                                 {"HOME", home().toUtf8()},
                                                 {"LPDEST", QByteArray()},
                                                 {"PRINTER", QByteArray()}};
  for (auto entry = environment.cbegin(); entry != environment.cend(); ++entry) {
    const char *name = entry.key().constData();
    m_savedEnvironment.insert(name, qgetenv(name));
    if (entry.value().isNull()) {
      qunsetenv(name);
    } else {
      qputenv(name, entry.value());
    }
  }
  cupsSetServer(nullptr);
}

void PrivateCups::start() {
  m_server.setProcessChannelMode(QProcess::ForwardedChannels);
  m_server.start(
      program(QStringLiteral("cupsd")),
      {QStringLiteral("-f"), QStringLiteral("-c"), serverRoot() + QStringLiteral("/cupsd.conf"),
       QStringLiteral("-s"), serverRoot() + QStringLiteral("/cups-files.conf")});
  ASSERT_TRUE(m_server.waitForStarted(patience));
  QElapsedTimer clock;
  for (clock.start(); clock.elapsed() < patience; QThread::msleep(pauseMilliseconds)) {
    if (run(QStringLiteral("lpstat"), {QStringLiteral("-r")})
            .output.contains(QStringLiteral("is running"))) {
      return;
    }
    ASSERT_TRUE(isRunning()) << log().toStdString();
  }
  FAIL() << "the private server does not answer: " << log().toStdString();
}

void PrivateCups::stop() {
  if (!isRunning()) return;
  resume();
  m_server.terminate();
  if (!m_server.waitForFinished(patience)) m_server.kill();
  m_server.waitForFinished(patience);
}

void PrivateCups::pause() {
  ::kill(static_cast<pid_t>(m_server.processId()), SIGSTOP);
}

void PrivateCups::resume() {
  ::kill(static_cast<pid_t>(m_server.processId()), SIGCONT);
}

QString PrivateCups::printedBy(const QString &queue) const {
  return m_folder.filePath(QStringLiteral("printed/") + queue);
}

QStringList PrivateCups::keepingBackend(const QString &queue) const {
  return {QStringLiteral("-v"), QStringLiteral("keep:") + printedBy(queue)};
}

Ran PrivateCups::addQueue(const QString &name, const QString &ppdFile, const QStringList &more) {
  QStringList arguments{QStringLiteral("-p"), name, QStringLiteral("-E"), QStringLiteral("-v"),
                        QStringLiteral("file://") + printedBy(name)};
  if (!ppdFile.isEmpty()) arguments << QStringLiteral("-P") << ppdFile;
  return run(QStringLiteral("lpadmin"), arguments + more);
}

Ran PrivateCups::run(const QString &name, const QStringList &arguments,
                     const QByteArray &input) const {
  QProcess process;
  process.start(program(name), arguments);
  return finish(process, input);
}

QMap<QString, QString> PrivateCups::jobAttributes(int jobId) const {
  constexpr int noPort = 0;
  return attributesOfJob(socket().toUtf8(), noPort,
                         "ipp://localhost/jobs/" + QByteArray::number(jobId));
}

QMap<QString, QString> attributesOfJob(const QByteArray &host, int port, const QByteArray &jobUri) {
  ipp_t *request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, jobUri.constData());
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
               cupsUser());
  constexpr int connectMilliseconds = 5000;
  http_t *http = httpConnect2(host.constData(), port, nullptr, AF_UNSPEC, HTTP_ENCRYPTION_NEVER, 1,
                              connectMilliseconds, nullptr);
  const QByteArray path = QUrl(QString::fromUtf8(jobUri)).path().toUtf8();
  ipp_t *response = cupsDoRequest(http, request, path.left(path.lastIndexOf('/')).constData());
  const auto attributes = attributesOf(response);
  ippDelete(response);
  httpClose(http);
  return attributes;
}

QMap<QString, QString> PrivateCups::comparableJobAttributes(int jobId) const {
  static const QRegularExpression own(
      QStringLiteral("^(job-id|job-uri|job-uuid|job-more-info|job-printer-up-time|"
                     "(date-)?time-at-.*)$"));
  auto attributes = jobAttributes(jobId);
  attributes.removeIf([](const auto &attribute) { return own.match(attribute.key()).hasMatch(); });
  return attributes;
}

QString PrivateCups::waitForJob(int jobId) const {
  QElapsedTimer clock;
  QString state;
  for (clock.start(); clock.elapsed() < patience; QThread::msleep(pauseMilliseconds)) {
    state = jobAttributes(jobId).value(QStringLiteral("job-state"));
    if (state == QStringLiteral("completed") || state == QStringLiteral("canceled") ||
        state == QStringLiteral("aborted")) {
      break;
    }
  }
  return state;
}

QString PrivateCups::log() const {
  return QString::fromUtf8(contentsOf(m_folder.filePath(QStringLiteral("error_log"))));
}

}  // namespace orvek::test
