// SPDX-License-Identifier: Apache-2.0
// A print server of a test's own: a scheduler in a temporary folder, reached over a socket there.
#pragma once

#include <QDir>
#include <QMap>
#include <QProcess>
#include <QString>
#include <QStringList>

namespace orvek::test {

/// What a program that a test ran gave.
struct Ran {
  int exitStatus = -1;
  QString output;
  QString errors;
};

/// What a print server or a printer says of a job, in the text form of libcups; empty where there
/// is no such job.
QMap<QString, QString> attributesOfJob(const QByteArray &host, int port, const QByteArray &jobUri);

/// A port of the loopback that nobody listens on.
int freePort();

/// Whether somebody listens on it.
bool isListening(int port);

/// How a private server differs from the usual one.
struct PrivateCupsSetup {
  /// Lines for the default policy; empty: everybody may do everything.
  QByteArray policy;
  /// A ready printers.conf; empty: no queues.
  QByteArray printers;
  /// Whether the driver that our PPDs name is installed.
  bool hasDriver = true;
};

/// Runs as long as it lives; one at a time. While it does, CUPS_SERVER, CUPS_SERVERROOT and HOME of
/// this process point to it, so that neither the machine's server nor the user's own options play a
/// part.
class PrivateCups {
 public:
  explicit PrivateCups(const PrivateCupsSetup &setup = {});
  ~PrivateCups();
  PrivateCups(const PrivateCups &) = delete;
  PrivateCups &operator=(const PrivateCups &) = delete;

  /// Why there can be no private server on this machine; empty where there can.
  static QString obstacle();

  bool isRunning() const { return m_server.state() == QProcess::Running; }
  QString socket() const { return m_folder.filePath(QStringLiteral("cups.sock")); }
  /// "127.0.0.1:PORT".
  QString hostAndPort() const { return QStringLiteral("127.0.0.1:%1").arg(m_port); }
  QString home() const { return m_folder.filePath(QStringLiteral("home")); }
  /// The folder that is asked for the machine-wide options.
  QString serverRoot() const { return m_folder.filePath(QStringLiteral("etc")); }

  void start();
  void stop();
  /// Keeps the server from answering, as one does that hangs; resume() ends it.
  void pause();
  void resume();

  /// Makes a queue that prints into printedBy(name). An empty PPD path makes one without a PPD.
  Ran addQueue(const QString &name, const QString &ppdFile, const QStringList &more = {});
  QString printedBy(const QString &queue) const;

  /// What makes a queue of addQueue() print there through a backend. The scheduler's own way into
  /// files prints nothing of jobs that need no filter.
  QStringList keepingBackend(const QString &queue) const;

  /// Runs a program of CUPS against this server.
  Ran run(const QString &program, const QStringList &arguments, const QByteArray &input = {}) const;

  /// A job's attributes as the server gives them, in the text form of libcups.
  QMap<QString, QString> jobAttributes(int jobId) const;

  /// The same without what no two jobs share: their numbers and the moments they were made.
  QMap<QString, QString> comparableJobAttributes(int jobId) const;

  /// Waits until the job has ended; its last state ("completed", "canceled", ...).
  QString waitForJob(int jobId) const;

  /// The server's own log, for messages of failed tests.
  QString log() const;

 private:
  void installPrograms(bool withDriver);
  void installKeepingBackend();
  void writeConfiguration(const PrivateCupsSetup &setup);
  void pointEnvironmentHere();

  QDir m_folder;
  QProcess m_server;
  int m_port = 0;
  QMap<QByteArray, QByteArray> m_savedEnvironment;
};

}  // namespace orvek::test
