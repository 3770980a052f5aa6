// SPDX-License-Identifier: Apache-2.0
// Whole sessions of the program that save something, and what must hold of them however they end.
#pragma once

#include <QDir>
#include <QTemporaryDir>
#include <memory>

#include "tests/host/cli/Program.h"
#include "tests/support/PrivateCups.h"

namespace orvek::test {

/// What a session does at its end.
enum class SessionKind { Ticket, Preset, Output, Queue, Window };

/// Runs such a session again and again from the same beginning: where it saves a file, an older one
/// lies there. Owns its folder and, for the queue, its print server. What fails is a sentence.
class FaultSession {
 public:
  explicit FaultSession(SessionKind kind);

  /// Why there can be none on this machine; empty where there can.
  static QString obstacle(SessionKind kind);

  QString folder() const { return m_folder.path(); }

  /// Runs it from the beginning, with more in its environment.
  ProgramRun run(const QStringList &more = {});

  /// The same, killed after so many milliseconds.
  void killAfter(int milliseconds);

  /// The same where the disk that it writes on has room for so many pages more; another command
  /// than the session's is for trying whether there can be such a disk.
  ProgramRun runOnFullDisk(int pages, const QStringList &command = {});

  /// What is wrong with how the last run ended; empty where all is as it must be: it did all and
  /// said nothing of errors, or it said in one line why not; and what was saved is whole.
  QString problemOf(const ProgramRun &run);

  /// What is wrong with what is saved now; empty where it is the older or the newer, whole.
  QString problemOfFiles() const;

  /// How long it takes undisturbed.
  qint64 usualMilliseconds() const { return m_usual; }

 private:
  void begin() const;
  QStringList environment() const;
  QStringList arguments() const;
  QString disk() const { return m_folder.filePath(QStringLiteral("disk")); }
  QString savedFile() const;
  QByteArray saved() const;
  bool isNew(const QByteArray &bytes) const;
  QString problemOfJob(const ProgramRun &run) const;

  SessionKind m_kind;
  QTemporaryDir m_folder;
  std::unique_ptr<PrivateCups> m_cups;
  QByteArray m_old;
  QByteArray m_new;
  qint64 m_usual = 0;
};

}  // namespace orvek::test
