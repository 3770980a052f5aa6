// SPDX-License-Identifier: Apache-2.0
// Keeps answers, and counts how often a user is asked.

#include "host/printers/Passwords.h"

namespace orvek {
namespace {

constexpr int mostAnswers = 3;

}  // namespace

std::shared_ptr<PasswordSource> PasswordSource::withoutAsking() const {
  return std::shared_ptr<PasswordSource>(new PasswordSource({}, m_answers));
}

std::optional<Credentials> PasswordSource::kept(const QString &server) const {
  const std::lock_guard lock(m_answers->mutex);
  const auto found = m_answers->byServer.constFind(server);
  if (found == m_answers->byServer.cend()) return std::nullopt;
  return *found;
}

void PasswordSource::forget(const QString &server) {
  const std::lock_guard lock(m_answers->mutex);
  m_answers->byServer.remove(server);
}

Result<Credentials> PasswordSource::ask(const PasswordQuestion &question,
                                        const std::atomic<bool> *cancelled) {
  if (!m_ask) {
    return Failure{
        FailureKind::Io, question.server,
        Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "the print server asks for a password"))};
  }
  Result<Credentials> answer = m_ask(question, cancelled);
  if (answer) {
    const std::lock_guard lock(m_answers->mutex);
    m_answers->byServer.insert(question.server, answer.value());
  }
  return answer;
}

std::optional<Credentials> PasswordRounds::next(const QString &server, const QString &user,
                                                const std::atomic<bool> *cancelled) {
  if (m_failure) return std::nullopt;
  if (m_source && !std::exchange(m_keptWasTried, true)) {
    if (auto kept = m_source->kept(server)) return kept;
  }
  Result<Credentials> answer = ask({server, user, m_asked > 0}, cancelled);
  if (answer) return answer.take();
  m_failure = answer.failure();
  if (m_source) m_source->forget(server);
  return std::nullopt;
}

Result<Credentials> PasswordRounds::ask(const PasswordQuestion &question,
                                        const std::atomic<bool> *cancelled) {
  if (!m_source) {
    return Failure{
        FailureKind::Io, question.server,
        Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "the print server asks for a password"))};
  }
  if (m_asked == mostAnswers) {
    return Failure{FailureKind::Io, question.server,
                   Phrase(QT_TRANSLATE_NOOP("orvek::Failure",
                                            "the print server did not accept the password of user "
                                            "\"%1\", given %2 times"),
                          {question.user, QString::number(mostAnswers)})};
  }
  ++m_asked;
  return m_source->ask(question, cancelled);
}

}  // namespace orvek
