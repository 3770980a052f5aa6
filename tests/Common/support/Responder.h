// SPDX-License-Identifier: Apache-2.0
// A multicast DNS responder on the printer, and a name server on this host, that say what a test
// tells them to.
#pragma once

#include <netinet/in.h>

#include <atomic>
#include <functional>
#include <mutex>
#include <thread>

#include "tests/Common/support/Replies.h"

namespace orvek::test {

/// Answers each query with the messages that `answer(query, number)` gives, queries counted from 0.
/// The name server sends a reply of more than 512 bytes as real ones do: its datagram is marked as
/// truncated, and the query that then comes by connection is answered in full.
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
  void open();
  void joinGroup() const;
  void listenForConnections(const sockaddr_in &address);
  void serve();
  std::vector<Bytes> repliesTo(const Bytes &query);
  void answerDatagram();
  void answerConnection();

  Place m_place;
  Answer m_answer;
  int m_socket = -1;
  int m_listener = -1;
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

/// The reply under the query's identifier, without which the ordinary resolver takes none.
inline Bytes withIdentifierOf(const Bytes &query, Bytes reply) {
  reply[0] = query[0];
  reply[1] = query[1];
  return reply;
}

/// Leads the ordinary resolver of the calling thread to `server`, and has it ask but once.
void resolveThrough(const Responder &server);

}  // namespace orvek::test
