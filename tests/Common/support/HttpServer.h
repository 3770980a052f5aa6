// SPDX-License-Identifier: Apache-2.0
// An HTTP server on the loopback that does what a test says: answers, stalls, drips, resets, talks
// garbage.
#pragma once

#include <atomic>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace orvek::test {

/// One connection with its request read. Writing to a peer that has gone is no error.
class HttpConnection {
 public:
  explicit HttpConnection(int socket) : m_socket(socket) {}
  void send(const std::string &bytes) const;
  /// Keeps silent, until the server ends at the latest.
  void pause(double seconds, const std::atomic<bool> &ended) const;
  /// Ends with a reset instead of a close.
  void reset() const;

 private:
  int m_socket;
};

class HttpServer {
 public:
  /// Called in the server's thread for each connection, with the request's head; the connection
  /// closes after it. `ended` becomes true when the server ends.
  using Handler = std::function<void(const HttpConnection &, const std::string &request,
                                     const std::atomic<bool> &ended)>;

  explicit HttpServer(Handler handler);
  ~HttpServer();
  HttpServer(const HttpServer &) = delete;
  HttpServer &operator=(const HttpServer &) = delete;

  /// "http://127.0.0.1:PORT" and `path`.
  std::string url(const std::string &path = "/") const;
  std::vector<std::string> requests() const;

 private:
  void serve();

  Handler m_handler;
  int m_listener = -1;
  int m_port = 0;
  std::atomic<bool> m_ended = false;
  mutable std::mutex m_mutex;
  std::vector<std::string> m_requests;
  std::thread m_thread;
};

/// A whole answer with its length announced.
std::string httpAnswer(const std::string &body, const std::string &status = "200 OK",
                       const std::string &fields = "");

}  // namespace orvek::test
