// SPDX-License-Identifier: Apache-2.0
// What a server may answer to a fetch: the input is sent as it stands to whoever connects. The
// stream is read to its end, without redirections, which would lead to hosts of the input's choice.

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cstdlib>
#include <string>
#include <thread>

#include "fuzz/Quiet.h"
#include "platform/network/ReadStream.h"

namespace {

/// A server that lives as long as the process, with the answer of the moment.
class Server {
 public:
  Server() : m_listener(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    if (bind(m_listener, reinterpret_cast<sockaddr *>(&address), size) != 0) std::abort();
    if (listen(m_listener, 64) != 0) std::abort();
    getsockname(m_listener, reinterpret_cast<sockaddr *>(&address), &size);
    m_port = ntohs(address.sin_port);
    std::thread([this] { serve(); }).detach();
  }

  QUrl url() const { return QUrl(QStringLiteral("http://127.0.0.1:%1/").arg(m_port)); }

  void setAnswer(const unsigned char *data, std::size_t size) {
    m_answer.assign(reinterpret_cast<const char *>(data), size);
  }

 private:
  void serve() const {
    for (;;) {
      const int connection = accept(m_listener, nullptr, nullptr);
      if (connection < 0) continue;
      std::array<char, 4096> request{};
      recv(connection, request.data(), request.size(), 0);
      send(connection, m_answer.data(), m_answer.size(), MSG_NOSIGNAL);
      shutdown(connection, SHUT_WR);
      recv(connection, request.data(), request.size(), 0);
      close(connection);
    }
  }

  int m_listener;
  int m_port = 0;
  std::string m_answer;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  keepQuiet();
  static Server &server = *new Server;
  server.setAnswer(data, size);
  const auto stream =
      orvek::ReadStream::createForHTTPRequest(orvek::createGetRequest(server.url()));
  if (!stream->open()) std::abort();
  std::array<char, 4096> piece{};
  std::int64_t count = orvek::streamReadNothingYet;
  std::size_t total = 0;
  while (count > 0 || count == orvek::streamReadNothingYet) {
    count = stream->read(piece);
    if (count > 0) total += static_cast<std::size_t>(count);
  }
  if (total > size) std::abort();
  return 0;
}
