// SPDX-License-Identifier: Apache-2.0
// A small HTTP server in a thread, one connection at a time.

#include "tests/Common/support/HttpServer.h"

#include <arpa/inet.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>

namespace orvek::test {
namespace {

constexpr int pollMilliseconds = 20;

std::string readHead(int socket, const std::atomic<bool> &ended) {
  std::string head;
  while (head.find("\r\n\r\n") == std::string::npos && !ended) {
    pollfd waiting{socket, POLLIN, 0};
    if (poll(&waiting, 1, pollMilliseconds) <= 0) continue;
    std::array<char, 4096> piece{};
    const ssize_t count = recv(socket, piece.data(), piece.size(), 0);
    if (count <= 0) break;
    head.append(piece.data(), static_cast<std::size_t>(count));
  }
  return head;
}

}  // namespace

void HttpConnection::send(const std::string &bytes) const {
  for (std::size_t sent = 0; sent < bytes.size();) {
    const ssize_t count = ::send(m_socket, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
    if (count <= 0) return;
    sent += static_cast<std::size_t>(count);
  }
}

void HttpConnection::pause(double seconds, const std::atomic<bool> &ended) const {
  const auto end = std::chrono::steady_clock::now() + std::chrono::duration<double>(seconds);
  while (!ended && std::chrono::steady_clock::now() < end) {
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
}

void HttpConnection::reset() const {
  const linger atOnce{1, 0};
  setsockopt(m_socket, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
}

HttpServer::HttpServer(Handler handler) : m_handler(std::move(handler)) {
  m_listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  // Where it fails, the port stays 0 and no client gets through.
  (void)bind(m_listener, reinterpret_cast<sockaddr *>(&address), sizeof address);
  listen(m_listener, 8);
  socklen_t size = sizeof address;
  getsockname(m_listener, reinterpret_cast<sockaddr *>(&address), &size);
  m_port = ntohs(address.sin_port);
  m_thread = std::thread([this] { serve(); });
}

HttpServer::~HttpServer() {
  m_ended = true;
  m_thread.join();
  close(m_listener);
}

std::string HttpServer::url(const std::string &path) const {
  return "http://127.0.0.1:" + std::to_string(m_port) + path;
}

std::vector<std::string> HttpServer::requests() const {
  const std::lock_guard lock(m_mutex);
  return m_requests;
}

void HttpServer::serve() {
  while (!m_ended) {
    pollfd waiting{m_listener, POLLIN, 0};
    if (poll(&waiting, 1, pollMilliseconds) <= 0) continue;
    const int connection = accept(m_listener, nullptr, nullptr);
    if (connection < 0) continue;
    const std::string head = readHead(connection, m_ended);
    {
      const std::lock_guard lock(m_mutex);
      m_requests.push_back(head);
    }
    m_handler(HttpConnection(connection), head, m_ended);
    close(connection);
  }
}

std::string httpAnswer(const std::string &body, const std::string &status,
                       const std::string &fields) {
  return "HTTP/1.1 " + status + "\r\n" + fields + "Content-Length: " + std::to_string(body.size()) +
         "\r\n\r\n" + body;
}

}  // namespace orvek::test
