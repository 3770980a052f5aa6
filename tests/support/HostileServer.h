// SPDX-License-Identifier: Apache-2.0
// A print server that is honest up to a certain question, and answers that one as no server should.
#pragma once

#include <QByteArray>
#include <QString>
#include <atomic>
#include <mutex>
#include <thread>
#include <vector>

#include "tests/support/HttpQuestion.h"

namespace orvek::test {

/// What it does to whoever asks.
enum class Hostility {
  None,
  Garbage,
  Silence,
  /// One byte of the answer ten times a second.
  Drip,
  /// Bytes that are no message, without an end.
  EndlessBody,
  EndlessHeaders,
  EndlessContinue,
  RedirectLoop,
  /// Attributes without an end.
  ManyAttributes,
  NestedCollections,
  /// No password is right.
  PasswordsForEver,
  /// Any is right, and wanted only once the whole question has come.
  PasswordLate,
  CloseInBody,
  WrongRequestId,
  Malformed,
  ServerError,
  UpgradeRequired,
  /// The one above.
  Last = UpgradeRequired,
};

/// Every one that no program may be held or ended by.
const std::vector<Hostility> &allHostilities();
const char *nameOf(Hostility hostility);

/// The question from which on it is so: an operation of IPP, or one of these.
inline constexpr int fromTheDescription = -1;
inline constexpr int fromTheStart = 0;
inline constexpr int fromTheSecondList = -2;

/// Listens on the loopback for as long as it lives. Has one queue, "office".
class HostileServer {
 public:
  explicit HostileServer(Hostility hostility, int from = fromTheStart);
  ~HostileServer();
  HostileServer(const HostileServer &) = delete;
  HostileServer &operator=(const HostileServer &) = delete;

  QString hostAndPort() const { return QStringLiteral("127.0.0.1:%1").arg(m_port); }

  /// The questions with documents that were answered as taken, one after the other.
  QByteArray printed() const;
  bool wasCancelled() const { return m_wasCancelled; }
  std::size_t connections() const;

 private:
  void accept();
  void serve(int socket);
  bool answer(int socket, const HttpQuestion &question);
  bool answerHonestly(int socket, const HttpQuestion &question);
  bool answerWithHostility(int socket, const HttpQuestion &question);
  bool answerWithOther(int socket, const HttpQuestion &question);
  bool answerWithoutEnd(int socket, const QByteArray &honest);
  bool answerWithStatus(int socket, const HttpQuestion &question);
  QByteArray honestMessage(const HttpQuestion &question, int requestId) const;
  bool isUnanswered() const;
  bool flood(int socket, const QByteArray &head, const QByteArray &piece, int pause = 1);

  Hostility m_hostility;
  int m_from;
  int m_listener;
  int m_port;
  std::atomic<bool> m_isEnding = false;
  std::atomic<bool> m_wasCancelled = false;
  std::atomic<int> m_lists = 0;
  mutable std::mutex m_mutex;
  QByteArray m_printed;
  std::vector<int> m_sockets;
  std::vector<std::thread> m_threads;
  std::thread m_acceptor;
};

}  // namespace orvek::test
