// SPDX-License-Identifier: Apache-2.0
// Who is asked when a print server wants a password, and the answers that were given. Knows no
// window and no terminal.
#pragma once

#include <QMap>
#include <QString>
#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

#include "platform/system/Result.h"

namespace orvek {

/// An answer to the question for a password. Plain data.
struct Credentials {
  QString user;
  QString password;
};

/// What is asked of the user. Plain data.
struct PasswordQuestion {
  /// As messages name it.
  QString server;
  /// As whom the server is asked so far.
  QString user;
  /// The last answer was not accepted.
  bool isRepeated = false;
};

/// Asks whoever is there, and keeps answers for as long as the program runs, so that nobody is
/// asked twice for one server. May be used from any thread. Shared by all who may have to ask.
/// Where nobody answers, a failure says why. Owns the answers together with those that
/// withoutAsking() gave.
class PasswordSource {
 public:
  /// Waits for an answer. A failure says why there is none, and must come soon once `cancelled`
  /// (may be null) is set. Called on the thread that talks to the server.
  using Ask = std::function<Result<Credentials>(const PasswordQuestion &,
                                                const std::atomic<bool> *cancelled)>;

  explicit PasswordSource(Ask ask)
      : m_ask(std::move(ask)), m_answers(std::make_shared<Answers>()) {}

  /// The same answers, but nobody is asked for new ones.
  std::shared_ptr<PasswordSource> withoutAsking() const;

  /// The answer given last for this server.
  std::optional<Credentials> kept(const QString &server) const;
  void forget(const QString &server);

  /// Asks, and keeps the answer.
  Result<Credentials> ask(const PasswordQuestion &question, const std::atomic<bool> *cancelled);

 private:
  struct Answers {
    std::mutex mutex;
    QMap<QString, Credentials> byServer;
  };

  PasswordSource(Ask ask, std::shared_ptr<Answers> answers)
      : m_ask(std::move(ask)), m_answers(std::move(answers)) {}

  Ask m_ask;
  std::shared_ptr<Answers> m_answers;
};

/// The answers to one connection's server: the one that is kept first, then a few of the user's.
/// Shares the source. Belongs to its connection and its thread. What fails is kept for failure().
class PasswordRounds {
 public:
  /// A null source: nobody can be asked.
  explicit PasswordRounds(std::shared_ptr<PasswordSource> source) : m_source(std::move(source)) {}

  /// The next answer to try. Once there is none, there is none for good.
  std::optional<Credentials> next(const QString &server, const QString &user,
                                  const std::atomic<bool> *cancelled);

  /// The answer that is kept may be tried again, as another connection asks.
  void beginAnew() { m_keptWasTried = false; }

  /// Why there was no answer left; nothing as long as there was one.
  const std::optional<Failure> &failure() const { return m_failure; }

 private:
  Result<Credentials> ask(const PasswordQuestion &question, const std::atomic<bool> *cancelled);

  std::shared_ptr<PasswordSource> m_source;
  std::optional<Failure> m_failure;
  bool m_keptWasTried = false;
  int m_asked = 0;
};

}  // namespace orvek
