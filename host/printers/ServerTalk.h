// SPDX-License-Identifier: Apache-2.0
// The one way to a print server: questions to a helper process, which has a limit on its time, and
// whose answers are data that may hold anything.
#pragma once

#include <QElapsedTimer>
#include <deque>
#include <memory>
#include <optional>

#include "host/printers/HelperProcess.h"
#include "host/printers/Passwords.h"
#include "host/printers/Queue.h"
#include "host/printers/ServerAccess.h"
#include "host/printers/ServerMessages.h"
#include "platform/system/Result.h"

namespace orvek {

/// An open connection, in a process of its own. Questions follow one another on it, all of them
/// within the limit on the whole. Owns the process; shares the passwords; borrows the flag that
/// cancels it, which ends every call within a twentieth of a second. Use it on one thread. After a
/// failure it is of no more use.
class ServerTalk {
 public:
  /// Fails where the server is unknown or does not answer within a few seconds.
  static Result<std::unique_ptr<ServerTalk>> open(const ServerAccess &access);

  /// Begins to open one and asks a first question on it, and waits for neither, nor tells of a
  /// failure: whoever opens a connection with the same access within a moment is given this one,
  /// and is told then what open() and ask() tell. Nobody is asked for a password before.
  static void openAhead(const ServerAccess &access, ServerTask task, const QCborMap &fields);

  /// Ends it; where its access says so, only a moment later, unless it is opened again by then.
  static void close(std::unique_ptr<ServerTalk> talk);

  /// What to call the server in a message.
  const QString &serverName() const { return m_serverName; }

  /// Asks, and waits for the answer's fields. The failure is the server's, in words, or says why
  /// there is no answer.
  Result<Fields> ask(ServerTask task, const QCborMap &fields = {});

  /// Asks, and does not wait for the answer: it is there for whoever asks the same next. Another
  /// question drops it.
  void askAhead(ServerTask task, const QCborMap &fields);

  /// The description that came with the last answer; null where none did.
  const QByteArray &description() const { return m_description; }

  /// The queue that was found on this connection by that name, for as long as a connection may be
  /// kept: nobody asks twice in one moment. Nothing where none was.
  std::optional<Queue> known(const QString &destination) const;
  void noteFound(const QString &destination, const Queue &queue);

  // For a question with more to say than one answer
  void begin(ServerTask task, const QCborMap &fields);
  void send(const Message &message);

  /// The next message that is neither a wish for a password nor a failure. Without `waits` there
  /// may be none yet.
  Result<std::optional<Message>> hear(bool waits);

  /// Counts the limit on the whole from now on: something was done.
  void beginStep();

  /// The failure for an answer that is not what it must be; ends the helper.
  Failure unreadable();

  /// Asks a helper of its own, and waits for nothing: it has a few seconds for it, also where this
  /// program ends meanwhile. Nobody is asked for a password; the one kept for `serverName` counts.
  static void leave(const ServerAccess &access, const QString &serverName, ServerTask task,
                    const QCborMap &fields);

 private:
  ServerTalk(const ServerAccess &access, HelperProcess helper);

  static std::unique_ptr<ServerTalk> takeKept(const ServerAccess &access);
  static Result<std::unique_ptr<ServerTalk>> withHelper(const ServerAccess &access);

  bool wasAskedAhead(const Message &question);
  void dropAnswersAhead();

  Status exchange(int milliseconds);
  void write();
  bool read();
  std::optional<Failure> limitReached();
  Result<std::optional<Message>> taken(const Message &message);
  void answerPassword(const Message &message);
  Failure ended();

  ServerAccess m_access;
  HelperProcess m_helper;
  PasswordRounds m_passwords;
  QString m_serverName;
  QByteArray m_toSend;
  MessageReader m_received;
  QByteArray m_description;
  /// Questions whose answers nobody has wanted so far.
  std::deque<QByteArray> m_ahead;
  QElapsedTimer m_clock;
  struct Found {
    QString destination;
    Queue queue;
    QElapsedTimer since;
  };
  std::optional<Found> m_found;
  /// Milliseconds of that in which the user was asked.
  qint64 m_asked = 0;
  bool m_isConnected = false;
  bool m_hasEnded = false;
};

}  // namespace orvek
