// SPDX-License-Identifier: Apache-2.0
// A datagram server in a thread.

#include "tests/Common/support/Responder.h"

#include <arpa/inet.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdlib>

#include "tests/Common/support/OwnNetwork.h"

namespace {

constexpr int waitMilliseconds = 20;

void require(bool holds, const char *what) {
  if (holds) return;
  std::perror(what);
  std::abort();
}

}  // namespace

Responder::Responder(Place place, Answer answer) : m_answer(std::move(answer)) {
  // A socket belongs to the network of the thread that makes it.
  std::thread([this, place] { open(place); }).join();
  m_thread = std::thread([this] { serve(); });
}

Responder::~Responder() {
  m_stop = true;
  m_thread.join();
  close(m_socket);
}

void Responder::open(Place place) {
  const bool multicast = place == Place::PrinterByMulticast;
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
  if (!multicast) return;
  ip_mreq membership{};
  membership.imr_multiaddr.s_addr = inet_addr("224.0.0.251");
  membership.imr_interface.s_addr = inet_addr(OwnNetwork::printerAddress);
  require(setsockopt(m_socket, IPPROTO_IP, IP_ADD_MEMBERSHIP, &membership, sizeof membership) == 0,
          "membership");
}

void Responder::serve() {
  while (!m_stop) {
    pollfd waiting{m_socket, POLLIN, 0};
    if (poll(&waiting, 1, waitMilliseconds) <= 0) continue;
    Bytes query(2048);
    sockaddr_in from{};
    socklen_t size = sizeof from;
    const ssize_t received = recvfrom(m_socket, query.data(), query.size(), 0,
                                      reinterpret_cast<sockaddr *>(&from), &size);
    if (received < 0) continue;
    query.resize(static_cast<std::size_t>(received));
    int number = 0;
    {
      const std::lock_guard lock(m_mutex);
      number = static_cast<int>(m_queries.size());
      m_queries.push_back(query);
    }
    for (const Bytes &reply : m_answer(query, number)) {
      sendto(m_socket, reply.data(), reply.size(), 0, reinterpret_cast<sockaddr *>(&from), size);
    }
  }
}

std::vector<Bytes> Responder::queries() const {
  const std::lock_guard lock(m_mutex);
  return m_queries;
}
