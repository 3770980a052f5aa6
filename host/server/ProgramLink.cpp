// SPDX-License-Identifier: Apache-2.0
// Blocking reads and writes of whole messages.

#include "host/server/ProgramLink.h"

#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>

namespace orvek {
namespace {

constexpr std::size_t blockBytes = 65536;
constexpr int nobodyListens = 1;

}  // namespace

Message ProgramLink::next() {
  while (true) {
    if (const auto message = m_received.next()) return *message;
    std::array<char, blockBytes> block{};
    const ssize_t count = ::recv(m_socket, block.data(), block.size(), 0);
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0 || m_received.isBroken()) ::_exit(nobodyListens);
    m_received.add(block.data(), count);
  }
}

void ProgramLink::say(const Message &message) const {
  const QByteArray bytes = framed(message);
  for (qsizetype sent = 0; sent < bytes.size();) {
    const ssize_t count = ::send(m_socket, bytes.constData() + sent,
                                 static_cast<std::size_t>(bytes.size() - sent), MSG_NOSIGNAL);
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) ::_exit(nobodyListens);
    sent += count;
  }
}

std::optional<GivenPassword> ProgramLink::passwordIn(Fields fields) {
  const GivenPassword given{fields.text("user").toUtf8(), fields.text("password").toUtf8()};
  return fields.isSound() ? std::optional(given) : std::nullopt;
}

std::optional<GivenPassword> ProgramLink::password(const QString &user, bool isAnew) {
  say(messageOf(MessageKind::PasswordWanted,
                {{QLatin1String("user"), fieldOf(user)}, {QLatin1String("anew"), isAnew}}));
  // Blocks of a document may still be on their way here; it is begun again after a password.
  Message message = next();
  while (message.kind != MessageKind::Credentials) message = next();
  return passwordIn(Fields::of(message.bytes));
}

}  // namespace orvek
