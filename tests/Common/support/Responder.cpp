// SPDX-License-Identifier: Apache-2.0
// A datagram server in a thread; the name server also takes connections.

#include "tests/Common/support/Responder.h"

#include <arpa/inet.h>
#include <poll.h>
#include <resolv.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cstdlib>

#include "tests/Common/support/OwnNetwork.h"

namespace orvek::test {
namespace {

constexpr int waitMilliseconds = 20;
constexpr std::size_t largestDatagram = 512;  // what a resolver without extensions takes
constexpr std::size_t queryRoom = 2048;
constexpr unsigned char truncatedFlag = 0x02;

void require(bool holds, const char *what) {
  if (holds) return;
  std::perror(what);
  std::abort();
}

/// What a name server says in a datagram of a reply that does not fit: ask by connection.
Bytes truncated(const Bytes &query) {
  Bytes reply = withIdentifierOf(query, replyTo(query, 0, {}));
  reply[2] |= truncatedFlag;
  return reply;
}

bool receiveAll(int socket, unsigned char *bytes, std::size_t size) {
  return recv(socket, bytes, size, MSG_WAITALL) == static_cast<ssize_t>(size);
}

}  // namespace

Responder::Responder(Place place, Answer answer) : m_place(place), m_answer(std::move(answer)) {
  // A socket belongs to the network of the thread that makes it.
  std::thread([this] { open(); }).join();
  m_thread = std::thread([this] { serve(); });
}

Responder::~Responder() {
  m_stop = true;
  m_thread.join();
  close(m_socket);
  if (m_listener >= 0) close(m_listener);
}

void Responder::open() {
  const bool multicast = m_place == Place::PrinterByMulticast;
  if (multicast) require(OwnNetwork::moveThreadToPrinter(), "setns");
  m_socket = socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = multicast ? htons(5353) : 0;
  address.sin_addr.s_addr = multicast ? INADDR_ANY : htonl(INADDR_LOOPBACK);
  const int on = 1;
  setsockopt(m_socket, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
  require(bind(m_socket, reinterpret_cast<sockaddr *>(&address), sizeof address) == 0, "bind");
  socklen_t size = sizeof address;
  getsockname(m_socket, reinterpret_cast<sockaddr *>(&address), &size);
  m_port = address.sin_port;
  if (multicast) {
    joinGroup();
  } else {
    listenForConnections(address);
  }
}

void Responder::joinGroup() const {
  ip_mreq membership{};
  membership.imr_multiaddr.s_addr = inet_addr("224.0.0.251");
  membership.imr_interface.s_addr = inet_addr(OwnNetwork::printerAddress);
  require(setsockopt(m_socket, IPPROTO_IP, IP_ADD_MEMBERSHIP, &membership, sizeof membership) == 0,
          "membership");
}

void Responder::listenForConnections(const sockaddr_in &address) {
  m_listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  require(bind(m_listener, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0,
          "bind");
  require(listen(m_listener, 1) == 0, "listen");
}

void Responder::serve() {
  std::array<pollfd, 2> waiting{{{m_socket, POLLIN, 0}, {m_listener, POLLIN, 0}}};
  while (!m_stop) {
    if (poll(waiting.data(), waiting.size(), waitMilliseconds) <= 0) continue;
    if ((waiting[0].revents & POLLIN) != 0) answerDatagram();
    if ((waiting[1].revents & POLLIN) != 0) answerConnection();
  }
}

std::vector<Bytes> Responder::repliesTo(const Bytes &query) {
  int number = 0;
  {
    const std::lock_guard lock(m_mutex);
    number = static_cast<int>(m_queries.size());
    m_queries.push_back(query);
  }
  return m_answer(query, number);
}

void Responder::answerDatagram() {
  Bytes query(queryRoom);
  sockaddr_in from{};
  socklen_t size = sizeof from;
  const ssize_t received =
      recvfrom(m_socket, query.data(), query.size(), 0, reinterpret_cast<sockaddr *>(&from), &size);
  if (received < 0) return;
  query.resize(static_cast<std::size_t>(received));
  for (const Bytes &reply : repliesTo(query)) {
    const bool fits = m_place == Place::PrinterByMulticast || reply.size() <= largestDatagram;
    const Bytes sent = fits ? reply : truncated(query);
    sendto(m_socket, sent.data(), sent.size(), 0, reinterpret_cast<sockaddr *>(&from), size);
  }
}

/// Messages on a connection come with their length in front (RFC 1035, section 4.2.2).
void Responder::answerConnection() {
  const int connection = accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
  if (connection < 0) return;
  std::array<unsigned char, 2> length{};
  if (receiveAll(connection, length.data(), length.size())) {
    Bytes query(static_cast<std::size_t>(length[0] << 8 | length[1]));
    if (receiveAll(connection, query.data(), query.size())) {
      for (const Bytes &reply : repliesTo(query)) {
        const Bytes sent = join(number16(static_cast<int>(reply.size())), reply);
        send(connection, sent.data(), sent.size(), MSG_NOSIGNAL);
      }
    }
  }
  close(connection);
}

std::vector<Bytes> Responder::queries() const {
  const std::lock_guard lock(m_mutex);
  return m_queries;
}

void resolveThrough(const Responder &server) {
  res_init();
  _res.nscount = 1;
  _res.nsaddr_list[0].sin_family = AF_INET;
  _res.nsaddr_list[0].sin_port = server.port();
  _res.nsaddr_list[0].sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  _res.retrans = 1;
  _res.retry = 1;
}

}  // namespace orvek::test
