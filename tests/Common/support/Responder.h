// SPDX-License-Identifier: Apache-2.0
// A multicast DNS responder on the printer, and a name server on this host, that say what a test
// tells them to.
#pragma once

#include <atomic>
#include <functional>
#include <mutex>
#include <thread>

#include "tests/Common/support/Replies.h"

/// Answers each datagram with those that `answer(query, number)` gives, queries counted from 0.
class Responder {
 public:
  using Answer = std::function<std::vector<Bytes>(const Bytes &query, int number)>;

  enum class Place { PrinterByMulticast, OwnHostByName };

  Responder(Place place, Answer answer);
  ~Responder();
  Responder(const Responder &) = delete;
  Responder &operator=(const Responder &) = delete;

  /// Where the name server listens, in network byte order.
  unsigned short port() const { return m_port; }
  std::vector<Bytes> queries() const;

 private:
  void open(Place place);
  void serve();

  Answer m_answer;
  int m_socket = -1;
  unsigned short m_port = 0;
  std::atomic<bool> m_stop = false;
  mutable std::mutex m_mutex;
  std::vector<Bytes> m_queries;
  std::thread m_thread;
};

/// A reply to `query`: its question, and these records.
inline Bytes replyTo(const Bytes &query, int answers, const Bytes &records) {
  return join(header(1, answers), Bytes(query.begin() + headerSize, query.end()), records);
}

/// An SRV answer to `query` with this target.
inline Bytes serviceReplyTo(const Bytes &query, const Bytes &target) {
  const Bytes data = serviceData(target);
  return replyTo(query, 1, join(pointer(headerSize), recordHeader(typeSRV, data.size()), data));
}
