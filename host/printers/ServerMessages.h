// SPDX-License-Identifier: Apache-2.0
// What a program and its print server helper say to each other: messages, and the fields in them.
// Either side takes the other's for anything at all until they have been read.
#pragma once

#include <QByteArray>
#include <QCborArray>
#include <QCborMap>
#include <QMap>
#include <QStringList>
#include <optional>

#include "platform/system/Result.h"

namespace orvek {

/// What a message is. Those of the program come first, then those of the helper.
///
/// The documents of a job, once it has been made (JobMade), go one by one in this order:
///
///   helper    DocumentWanted   which one
///   program   DocumentBegin, Block ..., DocumentEnd
///   helper    Taken            after each block that the server took, while others are on their
///   way helper    DocumentWanted   the next; or the same again, from its beginning, where the
///   server
///                              asked for a password too late. Until the program has answered that
///                              with DocumentBegin, what comes is the earlier attempt's, and is
///                              passed over; bytes taken count from 0 once more
///   helper    Answer           the server has them all; or, at any point, Failed
enum class MessageKind : char {
  /// A ServerTask with its fields.
  Question = 'q',
  /// User and password; without fields nobody gave one.
  Credentials = 'c',
  /// From here on it is the document that was wanted.
  DocumentBegin = 'd',
  /// Bytes of it, as they are.
  Block = 'b',
  DocumentEnd = 'e',

  /// The helper is about to connect to this server.
  Named = 'n',
  PasswordWanted = 'p',
  /// The job has been made.
  JobMade = 'j',
  /// The document with this number, from its beginning, whatever was sent of it before.
  DocumentWanted = 'w',
  /// The server has taken this many bytes of it more.
  Taken = 't',
  /// The bytes of a printer description, as they are; the answer follows.
  Description = 'r',
  Answer = 'a',
  Failed = 'f',
};

/// What the helper is asked to do. The first question opens the connection.
enum class ServerTask {
  Open,
  List,
  Find,
  Settings,
  Description,
  Send,
  IsStopped,
  HasMarkedJob,
  Cancel
};

/// A message. Plain data.
struct Message {
  MessageKind kind = MessageKind::Answer;
  QByteArray bytes;
};

/// A message as it goes over: its length in four bytes, the first the highest, its kind, its bytes.
QByteArray framed(const Message &message);

/// Takes messages out of a stream of bytes. A value.
class MessageReader {
 public:
  void add(const char *bytes, qsizetype size) { m_bytes.append(bytes, size); }

  /// The next whole message; nothing until it is there.
  std::optional<Message> next();

  /// Whether what came can't be a message: it has a length that none of its kind has.
  bool isBroken() const { return m_isBroken; }

 private:
  QByteArray m_bytes;
  bool m_isBroken = false;
};

/// Fields of a message being read. What is missing or of another type gives an empty value, and the
/// message is not sound.
class Fields {
 public:
  explicit Fields(const QCborMap &map) : m_map(map) {}
  explicit Fields(const QCborValue &value);

  /// Reads a message's bytes.
  static Fields of(const QByteArray &bytes);

  QString text(const char *name);
  qint64 number(const char *name);
  bool flag(const char *name);
  QStringList texts(const char *name);
  QMap<QString, QString> options(const char *name);
  QCborArray list(const char *name);

  bool isSound() const { return m_isSound; }

 private:
  QCborValue value(const char *name, QCborValue::Type type);

  QCborMap m_map;
  bool m_isSound = true;
};

/// A text for a field; a null one stays null.
QCborValue fieldOf(const QString &text);
QCborValue fieldOf(const QStringList &texts);
QCborValue fieldOf(const QMap<QString, QString> &options);

Message messageOf(MessageKind kind, const QCborMap &fields);
Message failedMessage(const Failure &failure);

/// The failure in a message of the kind Failed; one that says so where it is not sound.
Failure failureIn(const Message &message);

/// What is said of a print server whose answers are none.
Phrase unreadableAnswer();

/// What is said of one that keeps silent.
Phrase stoppedAnswering();

}  // namespace orvek
