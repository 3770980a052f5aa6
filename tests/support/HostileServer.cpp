// SPDX-License-Identifier: Apache-2.0
// Honest answers by libcups' own writer; the others byte by byte.

#include "tests/support/HostileServer.h"

#include <arpa/inet.h>
#include <cups/cups.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>

#include "tests/support/CapturingFilter.h"

namespace orvek::test {
namespace {

constexpr int dripMilliseconds = 100;
constexpr qsizetype messageHead = 8;
constexpr int many = 500;
constexpr int deep = 10000;

/// In the order in which they are declared.
constexpr std::array names{"none",
                           "garbage",
                           "silence",
                           "drip",
                           "endless body",
                           "endless headers",
                           "endless 100 Continue",
                           "redirect loop",
                           "endless attributes",
                           "nested collections",
                           "passwords for ever",
                           "late password",
                           "closed in the middle",
                           "wrong number",
                           "malformed",
                           "500",
                           "426"};
static_assert(names.size() == static_cast<std::size_t>(Hostility::Last) + 1);

bool sendAll(int socket, const QByteArray &bytes) {
  for (qsizetype sent = 0; sent < bytes.size();) {
    const ssize_t count = ::send(socket, bytes.constData() + sent,
                                 static_cast<std::size_t>(bytes.size() - sent), MSG_NOSIGNAL);
    if (count <= 0) return false;
    sent += count;
  }
  return true;
}

QByteArray headOf(const QByteArray &status, qint64 length, const QByteArray &more = {}) {
  return "HTTP/1.1 " + status +
         "\r\nContent-Type: application/ipp\r\nContent-Length: " + QByteArray::number(length) +
         "\r\n" + more + "\r\n";
}

QByteArray whole(const QByteArray &body) {
  return headOf("200 OK", body.size()) + body;
}

ssize_t append(void *bytes, ipp_uchar_t *data, std::size_t size) {
  static_cast<QByteArray *>(bytes)->append(reinterpret_cast<const char *>(data), qsizetype(size));
  return static_cast<ssize_t>(size);
}

void describeQueue(ipp_t *message, int port) {
  const QByteArray uri = "ipp://127.0.0.1:" + QByteArray::number(port) + "/printers/office";
  const auto text = [message](ipp_tag_t tag, const char *name, const char *value) {
    ippAddString(message, IPP_TAG_PRINTER, tag, name, nullptr, value);
  };
  text(IPP_TAG_NAME, "printer-name", "office");
  text(IPP_TAG_URI, "printer-uri-supported", uri.constData());
  text(IPP_TAG_TEXT, "printer-info", "Office");
  text(IPP_TAG_TEXT, "printer-state-message", "Warm");
  text(IPP_TAG_KEYWORD, "printer-state-reasons", "none");
  ippAddInteger(message, IPP_TAG_PRINTER, IPP_TAG_ENUM, "printer-state", IPP_PSTATE_IDLE);
  ippAddInteger(message, IPP_TAG_PRINTER, IPP_TAG_ENUM, "printer-type", 0);
  ippAddBoolean(message, IPP_TAG_PRINTER, "printer-is-accepting-jobs", 1);
  const std::vector<const char *> sides{"one-sided", "two-sided-long-edge"};
  ippAddStrings(message, IPP_TAG_PRINTER, IPP_TAG_KEYWORD, "sides-supported", int(sides.size()),
                nullptr, sides.data());
}

QByteArray nested(int depth) {
  // A collection's value is empty; its members follow, each a name and a value, here another one.
  QByteArray bytes = QByteArray("\x34\x00\x01x\x00\x00", 6);
  for (int i = 0; i < depth; ++i) {
    bytes += QByteArray("\x4a\x00\x00\x00\x01y\x34\x00\x00\x00\x00", 11);
  }
  return bytes;
}

}  // namespace

const std::vector<Hostility> &allHostilities() {
  static const std::vector<Hostility> all = [] {
    std::vector<Hostility> found;
    for (int i = 0; i <= static_cast<int>(Hostility::Last); ++i) {
      const auto hostility = static_cast<Hostility>(i);
      // These two let whoever asks get through.
      if (hostility == Hostility::None || hostility == Hostility::PasswordLate) continue;
      found.push_back(hostility);
    }
    return found;
  }();
  return all;
}

const char *nameOf(Hostility hostility) {
  return names.at(static_cast<std::size_t>(hostility));
}

HostileServer::HostileServer(Hostility hostility, int from)
    : m_hostility(hostility),
      m_from(from),
      m_listener(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  auto *plain = reinterpret_cast<sockaddr *>(&address);
  EXPECT_EQ(::bind(m_listener, plain, size), 0);
  EXPECT_EQ(::listen(m_listener, SOMAXCONN), 0);
  EXPECT_EQ(::getsockname(m_listener, plain, &size), 0);
  m_port = ntohs(address.sin_port);
  m_acceptor = std::thread([this] { accept(); });
}

HostileServer::~HostileServer() {
  m_isEnding = true;
  ::shutdown(m_listener, SHUT_RDWR);
  m_acceptor.join();
  {
    const std::lock_guard lock(m_mutex);
    for (const int socket : m_sockets) ::shutdown(socket, SHUT_RDWR);
  }
  for (std::thread &thread : m_threads) thread.join();
  for (const int socket : m_sockets) ::close(socket);
  ::close(m_listener);
}

QByteArray HostileServer::printed() const {
  const std::lock_guard lock(m_mutex);
  return m_printed;
}

std::size_t HostileServer::connections() const {
  const std::lock_guard lock(m_mutex);
  return m_sockets.size();
}

void HostileServer::accept() {
  while (!m_isEnding) {
    const int socket = ::accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
    if (socket < 0) continue;
    const std::lock_guard lock(m_mutex);
    m_sockets.push_back(socket);
    m_threads.emplace_back([this, socket] { serve(socket); });
  }
}

void HostileServer::serve(int socket) {
  QByteArray buffer;
  while (!m_isEnding) {
    const auto question = readQuestion(socket, &buffer);
    if (!question || !answer(socket, *question)) break;
  }
  ::shutdown(socket, SHUT_RDWR);
}

bool HostileServer::answer(int socket, const HttpQuestion &question) {
  const int asked = question.isGet ? fromTheDescription : question.operation();
  const bool isSecond = asked == IPP_OP_CUPS_GET_PRINTERS && ++m_lists == 2;
  const bool isHit =
      m_from == fromTheStart || asked == m_from || (isSecond && m_from == fromTheSecondList);
  return isHit ? answerWithHostility(socket, question) : answerHonestly(socket, question);
}

bool HostileServer::answerHonestly(int socket, const HttpQuestion &question) {
  if (question.isGet) {
    const QByteArray ppd = contentsOf(QStringLiteral(ORVEK_SOURCE_DIR "/printers/Orvek-6180.ppd"));
    return sendAll(socket, whole(ppd));
  }
  if (question.operation() == IPP_OP_CANCEL_JOB) m_wasCancelled = true;
  if (question.operation() == IPP_OP_SEND_DOCUMENT) {
    const std::lock_guard lock(m_mutex);
    m_printed += question.body;
  }
  return sendAll(socket, whole(honestMessage(question, question.requestId())));
}

QByteArray HostileServer::honestMessage(const HttpQuestion &question, int requestId) const {
  ipp_t *message = ippNew();
  ippSetVersion(message, 2, 0);
  ippSetRequestId(message, requestId);
  ippSetStatusCode(message, IPP_STATUS_OK);
  ippAddString(message, IPP_TAG_OPERATION, IPP_TAG_CHARSET, "attributes-charset", nullptr, "utf-8");
  ippAddString(message, IPP_TAG_OPERATION, IPP_TAG_LANGUAGE, "attributes-natural-language", nullptr,
               "en");
  if (question.operation() == IPP_OP_CREATE_JOB || question.operation() == IPP_OP_SEND_DOCUMENT) {
    ippAddInteger(message, IPP_TAG_JOB, IPP_TAG_INTEGER, "job-id", 1);
  } else if (question.operation() != IPP_OP_CANCEL_JOB) {
    describeQueue(message, m_port);
  }
  QByteArray bytes;
  ippWriteIO(&bytes, append, 1, nullptr, message);
  ippDelete(message);
  return bytes;
}

// Until the other side is gone, or this one.
bool HostileServer::flood(int socket, const QByteArray &head, const QByteArray &piece, int pause) {
  bool isThere = sendAll(socket, head);
  while (isThere && !m_isEnding) {
    isThere = sendAll(socket, piece);
    std::this_thread::sleep_for(std::chrono::milliseconds(pause));
  }
  return false;
}

bool HostileServer::isUnanswered() const {
  ADD_FAILURE() << "nothing is done for " << nameOf(m_hostility);
  return false;
}

// A kind of hostility that nobody answers with would pass for another one.
#pragma GCC diagnostic error "-Wswitch"
bool HostileServer::answerWithHostility(int socket, const HttpQuestion &question) {
  switch (m_hostility) {
    case Hostility::None:
      return answerHonestly(socket, question);
    case Hostility::Garbage:
    case Hostility::NestedCollections:
    case Hostility::CloseInBody:
    case Hostility::WrongRequestId:
    case Hostility::Malformed:
      return answerWithOther(socket, question);
    case Hostility::Silence:
    case Hostility::Drip:
    case Hostility::EndlessBody:
    case Hostility::EndlessHeaders:
    case Hostility::EndlessContinue:
    case Hostility::ManyAttributes:
      return answerWithoutEnd(socket, honestMessage(question, question.requestId()));
    case Hostility::RedirectLoop:
    case Hostility::PasswordsForEver:
    case Hostility::PasswordLate:
    case Hostility::ServerError:
    case Hostility::UpgradeRequired:
      return answerWithStatus(socket, question);
  }
  return false;
}

// Something, but no answer.
bool HostileServer::answerWithOther(int socket, const HttpQuestion &question) {
  const QByteArray honest = honestMessage(question, question.requestId());
  switch (m_hostility) {
    case Hostility::Garbage:
      sendAll(socket,
              QByteArray("\xff\x00\x80 nothing that anybody could read", 35).repeated(many));
      return false;
    case Hostility::NestedCollections:
      return sendAll(socket, whole(honest.chopped(1) + nested(deep)));
    case Hostility::CloseInBody:
      sendAll(socket, headOf("200 OK", honest.size()) + honest.left(honest.size() / 2));
      return false;
    case Hostility::WrongRequestId:
      return sendAll(socket, whole(honestMessage(question, question.requestId() + many)));
    case Hostility::Malformed:
      return sendAll(socket, whole("This is no answer at all."));
    default:
      return isUnanswered();
  }
}

bool HostileServer::answerWithoutEnd(int socket, const QByteArray &honest) {
  constexpr qint64 endless = 1LL << 40;
  const QByteArray head = headOf("200 OK", endless);
  switch (m_hostility) {
    case Hostility::Silence:
      return flood(socket, {}, {}, dripMilliseconds);
    case Hostility::Drip:
      return flood(socket, head + honest.left(messageHead), "\x01", dripMilliseconds);
    case Hostility::EndlessBody:
      return flood(socket, head + honest.left(messageHead), QByteArray(65536, '\0'));
    case Hostility::EndlessHeaders:
      return flood(socket, "HTTP/1.1 200 OK\r\n",
                   QByteArray("X-More: and more\r\n").repeated(many));
    case Hostility::EndlessContinue:
      return flood(socket, {}, QByteArray("HTTP/1.1 100 Continue\r\n\r\n").repeated(many));
    case Hostility::ManyAttributes:
      return flood(socket, head + honest.chopped(1),
                   QByteArray("\x44\x00\x01z\x00\x03yes", 9).repeated(many));
    default:
      return isUnanswered();
  }
}

bool HostileServer::answerWithStatus(int socket, const HttpQuestion &question) {
  const QByteArray door = "WWW-Authenticate: Basic realm=\"printing\"\r\n";
  switch (m_hostility) {
    case Hostility::RedirectLoop:
      return sendAll(socket, headOf("301 Moved Permanently", 0,
                                    "Location: http://" + hostAndPort().toUtf8() + "/\r\n"));
    case Hostility::PasswordLate:
      if (question.hasPassword) return answerHonestly(socket, question);
      [[fallthrough]];
    case Hostility::PasswordsForEver:
      return sendAll(socket, headOf("401 Unauthorized", 0, door));
    case Hostility::UpgradeRequired:
      return sendAll(socket, headOf("426 Upgrade Required", 0,
                                    "Connection: Upgrade\r\nUpgrade: TLS/1.2,HTTP/1.1\r\n"));
    case Hostility::ServerError:
      return sendAll(socket, headOf("500 Internal Server Error", 0));
    default:
      return isUnanswered();
  }
}

}  // namespace orvek::test
