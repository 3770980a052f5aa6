// SPDX-License-Identifier: Apache-2.0
// What the helper that talks to print servers may answer: the input comes over its socket as it
// stands, behind a connection that opened. The first byte chooses what was asked.

#include <sys/socket.h>
#include <unistd.h>

#include <QFile>
#include <array>

#include "fuzz/MemoryFolder.h"
#include "host/printers/PrinterList.h"
#include "host/printers/QueueAttributes.h"
#include "host/printers/QueuePPD.h"

namespace {

using namespace orvek;
using fuzz::require;
using fuzz::requireReason;

QByteArray &answers() {
  static QByteArray bytes;
  return bytes;
}

}  // namespace

namespace orvek {

// In place of the process: a socket with all that it says, and its end.
Result<HelperProcess> HelperProcess::start() {
  std::array<int, 2> ends{-1, -1};
  require(::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) == 0);
  const auto size = static_cast<std::size_t>(answers().size());
  require(::send(ends[1], answers().constData(), size, MSG_DONTWAIT) == static_cast<ssize_t>(size));
  ::close(ends[1]);
  constexpr pid_t none = -1;
  return HelperProcess(SocketProgram{none, ends[0]});
}

void HelperProcess::adopt(const SocketProgram &) {}

HelperProcess::~HelperProcess() {
  if (m_socket >= 0) ::close(m_socket);
}

void HelperProcess::kill() {}

bool HelperProcess::hasEnded(std::chrono::milliseconds) {
  return true;
}

void HelperProcess::letFinish(HelperProcess) {}

}  // namespace orvek

namespace {

bool isPlain(const QString &text) {
  return std::none_of(text.begin(), text.end(),
                      [](QChar c) { return c.category() == QChar::Other_Control; });
}

// However the stream is cut, the same messages come of it, and they are what was sent.
void readMessages(const QByteArray &bytes, qsizetype piece) {
  MessageReader whole;
  whole.add(bytes.constData(), bytes.size());
  MessageReader pieces;
  QByteArray again;
  for (qsizetype begin = 0; begin < bytes.size(); begin += piece) {
    pieces.add(bytes.constData() + begin, std::min(piece, bytes.size() - begin));
    while (const auto message = pieces.next()) {
      const auto same = whole.next();
      require(same && same->kind == message->kind && same->bytes == message->bytes);
      again += framed(*message);
      const Failure failure = failureIn(*message);
      requireReason(failure);
      require(isPlain(failure.line()));
    }
  }
  require(!whole.next() && whole.isBroken() == pieces.isBroken());
  require(bytes.startsWith(again));
}

void requireFailure(const Failure &failure) {
  requireReason(failure);
  require(failure.kind == FailureKind::Io);
}

void list(const ServerAccess &access) {
  const auto queues = listPrinters(access);
  if (!queues) return requireFailure(queues.failure());
  for (const Queue &queue : queues.value()) {
    require(!queue.name.isEmpty() && !stateInWords(queue).isEmpty());
    const Destination destination = destinationFrom(queue.destination());
    require(queue.instance.isNull() || queue.destination().endsWith(destination.instance));
  }
}

void find(const ServerAccess &access) {
  const auto queue = findPrinter(access, QStringLiteral("office"));
  if (!queue) return requireFailure(queue.failure());
  require(!queue.value().name.isEmpty());
}

void settings(const ServerAccess &access) {
  const auto offers = readQueueSettings(access, QStringLiteral("office"));
  if (!offers) requireFailure(offers.failure());
}

void description(const ServerAccess &access, const QByteArray &bytes) {
  const auto path = QueuePPD(fuzz::memoryFolder()).fetch(access, QStringLiteral("office"));
  if (!path) return requireFailure(path.failure());
  if (path.value().isNull()) return;
  QFile kept(path.value());
  // The answer may be that what was kept before is still good.
  require(kept.open(QIODevice::ReadOnly));
  const QByteArray ppd = kept.readAll();
  require(bytes.contains(ppd));
  kept.remove();
}

void ask(unsigned char question, const QByteArray &bytes) {
  ServerAccess access;
  access.server = QStringLiteral("server");
  switch (question) {
    case 0:
      return list(access);
    case 1:
      return find(access);
    case 2:
      return settings(access);
    default:
      return description(access, bytes);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  // More than that a socket may not take at once.
  constexpr std::size_t most = 65536;
  if (size == 0 || size > most) return 0;
  const unsigned char choice = data[0];
  const QByteArray bytes(reinterpret_cast<const char *>(data + 1),
                         static_cast<qsizetype>(size - 1));
  readMessages(bytes, 1 + (choice >> 3U));
  static const QByteArray opened = framed(messageOf(MessageKind::Answer, {}));
  answers() = (choice & 4U) != 0 ? bytes : opened + bytes;
  ask(choice & 3U, bytes);
  return 0;
}
