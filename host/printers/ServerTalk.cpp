// SPDX-License-Identifier: Apache-2.0
// Sends and hears at once, and looks at the clock and at whoever may cancel in between.

#include "host/printers/ServerTalk.h"

#include <poll.h>
#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <mutex>

namespace orvek {
namespace {

constexpr int lookMilliseconds = 50;
constexpr std::size_t blockBytes = 65536;
/// Each in terms of how long a server may keep silent.
constexpr qint64 connectingTakes = 3;
// For which a connection is kept, as long as servers keep theirs at least.
constexpr qint64 moment = 2000;
constexpr qint64 answeringTakesHalves = 15;

QString nameBeforeItIsKnown(const ServerAccess &access) {
  return access.server.isEmpty() ? QStringLiteral("CUPS") : access.server;
}

QCborMap openFields(const ServerAccess &access) {
  return {{QLatin1String("server"), fieldOf(access.server)},
          {QLatin1String("user"), fieldOf(access.user)},
          {QLatin1String("patience"), static_cast<qint64>(access.patience.count())}};
}

QCborMap credentialFields(const Credentials &given) {
  return {{QLatin1String("user"), fieldOf(given.user)},
          {QLatin1String("password"), fieldOf(given.password)}};
}

Message question(ServerTask task, QCborMap fields) {
  fields.insert(QLatin1String("task"), static_cast<int>(task));
  return messageOf(MessageKind::Question, fields);
}

/// A connection that nobody uses at present.
struct Kept {
  std::mutex mutex;
  std::unique_ptr<ServerTalk> talk;
  QElapsedTimer since;
};

Kept &kept() {
  static Kept talk;
  return talk;
}

}  // namespace

ServerTalk::ServerTalk(const ServerAccess &access, HelperProcess helper)
    : m_access(access),
      m_helper(std::move(helper)),
      m_passwords(access.passwords),
      m_serverName(nameBeforeItIsKnown(access)) {
  m_clock.start();
}

void ServerTalk::close(std::unique_ptr<ServerTalk> talk) {
  if (!talk->m_access.staysOpen) return;
  const std::lock_guard lock(kept().mutex);
  kept().talk = std::move(talk);
  kept().since.start();
}

std::unique_ptr<ServerTalk> ServerTalk::takeKept(const ServerAccess &access) {
  const std::lock_guard lock(kept().mutex);
  std::unique_ptr<ServerTalk> talk = std::move(kept().talk);
  const bool isFit = talk && kept().since.elapsed() < moment &&
                     talk->m_access.server == access.server && talk->m_access.user == access.user &&
                     talk->m_access.patience == access.patience &&
                     !talk->m_helper.hasEnded(std::chrono::milliseconds::zero());
  if (!isFit) return nullptr;
  talk->m_access = access;
  talk->m_passwords = PasswordRounds(access.passwords);
  talk->beginStep();
  return talk;
}

Result<std::unique_ptr<ServerTalk>> ServerTalk::withHelper(const ServerAccess &access) {
  auto helper = HelperProcess::start();
  if (!helper) return helper.failure();
  return std::unique_ptr<ServerTalk>(new ServerTalk(access, helper.take()));
}

Result<std::unique_ptr<ServerTalk>> ServerTalk::open(const ServerAccess &access) {
  std::unique_ptr<ServerTalk> talk = takeKept(access);
  if (!talk) {
    auto begun = withHelper(access);
    if (!begun) return begun;
    talk = begun.take();
  }
  if (talk->m_isConnected) return talk;
  const auto opened = talk->ask(ServerTask::Open, openFields(access));
  if (!opened) return opened.failure();
  talk->m_isConnected = true;
  return talk;
}

void ServerTalk::openAhead(const ServerAccess &access, ServerTask task, const QCborMap &fields) {
  ServerAccess lasting = access;
  lasting.staysOpen = true;
  std::unique_ptr<ServerTalk> talk = takeKept(lasting);
  if (!talk) {
    auto begun = withHelper(lasting);
    if (!begun) return;
    talk = begun.take();
    talk->askAhead(ServerTask::Open, openFields(access));
  }
  talk->askAhead(task, fields);
  close(std::move(talk));
}

void ServerTalk::leave(const ServerAccess &access, const QString &serverName, ServerTask task,
                       const QCborMap &fields) {
  auto helper = HelperProcess::start();
  if (!helper) return;
  ServerTalk talk(access, helper.take());
  QCborMap open = openFields(access);
  const auto kept = access.passwords ? access.passwords->kept(serverName) : std::nullopt;
  open.insert(QLatin1String("left"), QCborMap(kept ? credentialFields(*kept) : QCborMap()));
  talk.send(question(ServerTask::Open, open));
  talk.send(question(task, fields));
  HelperProcess::letFinish(std::move(talk.m_helper));
}

void ServerTalk::askAhead(ServerTask task, const QCborMap &fields) {
  const Message asked = question(task, fields);
  if (std::find(m_ahead.begin(), m_ahead.end(), asked.bytes) != m_ahead.end()) return;
  m_ahead.push_back(asked.bytes);
  send(asked);
}

bool ServerTalk::wasAskedAhead(const Message &question) {
  if (m_ahead.empty() || m_ahead.front() != question.bytes) return false;
  m_ahead.pop_front();
  return true;
}

// Where there is none any more, whoever asks hears so again.
void ServerTalk::dropAnswersAhead() {
  for (; !m_ahead.empty(); m_ahead.pop_front()) (void)hear(true);
}

Result<Fields> ServerTalk::ask(ServerTask task, const QCborMap &fields) {
  m_description = QByteArray();
  if (!wasAskedAhead(question(task, fields))) begin(task, fields);
  const auto heard = hear(true);
  if (!heard) return heard.failure();
  const Message &answer = *heard.value();
  if (answer.kind != MessageKind::Answer) return unreadable();
  Fields answered = Fields::of(answer.bytes);
  return answered.isSound() ? Result<Fields>(answered) : Result<Fields>(unreadable());
}

std::optional<Queue> ServerTalk::known(const QString &destination) const {
  const bool isKnown =
      m_found && m_found->destination == destination && m_found->since.elapsed() < moment;
  return isKnown ? std::optional(m_found->queue) : std::nullopt;
}

void ServerTalk::noteFound(const QString &destination, const Queue &queue) {
  m_found = {destination, queue, {}};
  m_found->since.start();
}

void ServerTalk::begin(ServerTask task, const QCborMap &fields) {
  dropAnswersAhead();
  m_description = QByteArray();
  send(question(task, fields));
}

void ServerTalk::send(const Message &message) {
  m_toSend += framed(message);
  write();
}

Result<std::optional<Message>> ServerTalk::hear(bool waits) {
  while (true) {
    while (const auto message = m_received.next()) {
      auto heard = taken(*message);
      if (!heard || heard.value()) return heard;
    }
    if (m_received.isBroken()) return unreadable();
    if (m_hasEnded) return ended();
    if (const auto reached = limitReached()) return *reached;
    if (const Status exchanged = exchange(waits ? lookMilliseconds : 0); !exchanged) {
      return exchanged.failure();
    }
    if (!waits) {
      const auto message = m_received.next();
      return message ? taken(*message) : std::optional<Message>();
    }
  }
}

Result<std::optional<Message>> ServerTalk::taken(const Message &message) {
  switch (message.kind) {
    case MessageKind::Named:
      m_serverName = Fields::of(message.bytes).text("server");
      return std::optional<Message>();
    case MessageKind::PasswordWanted:
      answerPassword(message);
      return std::optional<Message>();
    case MessageKind::Description:
      m_description = message.bytes;
      return std::optional<Message>();
    case MessageKind::Failed:
      return m_passwords.failure() ? *m_passwords.failure() : failureIn(message);
    default:
      return std::optional(message);
  }
}

// The time that a user takes is not the server's.
void ServerTalk::answerPassword(const Message &message) {
  const qint64 before = m_clock.elapsed();
  Fields wanted = Fields::of(message.bytes);
  const QString user = wanted.text("user");
  if (wanted.flag("anew")) m_passwords.beginAnew();
  QCborMap answer;
  if (const auto given = m_passwords.next(m_serverName, user, m_access.cancelled)) {
    answer = credentialFields(*given);
  }
  m_asked += m_clock.elapsed() - before;
  send(messageOf(MessageKind::Credentials, answer));
}

void ServerTalk::beginStep() {
  m_clock.start();
  m_asked = 0;
}

std::optional<Failure> ServerTalk::limitReached() {
  if (m_access.cancelled != nullptr && *m_access.cancelled) {
    m_helper.kill();
    return cancelledFailure(m_serverName);
  }
  const qint64 patience = m_access.patience.count();
  const qint64 limit =
      m_isConnected ? patience * answeringTakesHalves / 2 : patience * connectingTakes;
  if (m_clock.elapsed() - m_asked < limit) return std::nullopt;
  m_helper.kill();
  if (!m_isConnected) {
    return Failure{FailureKind::Io, m_serverName, stoppedAnswering()};
  }
  return Failure{FailureKind::Io, m_serverName,
                 Phrase(QT_TRANSLATE_NOOP("orvek::Failure",
                                          "the print server did not come to an end of its answer; "
                                          "try again later, or ask whoever runs it"))};
}

Failure ServerTalk::unreadable() {
  m_helper.kill();
  return {FailureKind::Io, m_serverName, unreadableAnswer()};
}

// It says why wherever it can; what a server sent was too much for it then.
Failure ServerTalk::ended() {
  return m_passwords.failure() ? *m_passwords.failure() : unreadable();
}

Status ServerTalk::exchange(int milliseconds) {
  write();
  const short events = m_toSend.isEmpty() ? POLLIN : POLLIN | POLLOUT;
  pollfd ready{m_helper.socket(), events, 0};
  if (::poll(&ready, 1, milliseconds) < 0 && errno != EINTR) {
    return Failure{FailureKind::Io, m_serverName, Phrase::ofSystem(errno)};
  }
  m_hasEnded = !read();
  return {};
}

void ServerTalk::write() {
  const ssize_t count =
      ::send(m_helper.socket(), m_toSend.constData(), static_cast<std::size_t>(m_toSend.size()),
             MSG_NOSIGNAL | MSG_DONTWAIT);
  if (count > 0) m_toSend.remove(0, count);
}

// False once there is no more to come.
bool ServerTalk::read() {
  std::array<char, blockBytes> block{};
  const ssize_t count = ::recv(m_helper.socket(), block.data(), block.size(), MSG_DONTWAIT);
  if (count > 0) m_received.add(block.data(), count);
  return count > 0 || (count < 0 && (errno == EAGAIN || errno == EINTR));
}

}  // namespace orvek
