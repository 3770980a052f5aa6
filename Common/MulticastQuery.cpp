// SPDX-License-Identifier: Apache-2.0
// The one-shot multicast query. Replies come by unicast to the query's own port, since that is not
// the multicast DNS port (RFC 6762, section 6.7).

#include <arpa/nameser.h>
#include <poll.h>
#include <resolv.h>
#include <strings.h>
#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <span>

#include "Common/RendezvousUtilities.h"
#include "platform/network/FileDescriptor.h"
#include "platform/network/MulticastInterfaces.h"
#include "platform/system/Gestalt.h"

sockaddr_in mDNS_addr;

namespace orvek {
namespace {

using Clock = std::chrono::steady_clock;
using Bytes = std::span<unsigned char>;

constexpr std::uint16_t multicastPort = 5353;
constexpr std::uint32_t multicastGroup = 0xE00000FB;  // 224.0.0.251
constexpr unsigned char multicastTTL = 255;
constexpr int queryBufferSize = 1024;
constexpr int passes = 3;
constexpr std::chrono::milliseconds passTime{1000};
constexpr std::int32_t firstVersionWithOwnMulticast = 0x1023;

struct Question {
  const char *name;
  int rrClass;
  int rrType;
};

void prepareMulticastAddress() {
  mDNS_addr = {};
  mDNS_addr.sin_family = AF_INET;
  mDNS_addr.sin_port = htons(multicastPort);
  mDNS_addr.sin_addr.s_addr = htonl(multicastGroup);
}

bool systemResolvesMulticast() {
  std::int32_t version = 0;
  return Gestalt(gestaltSystemVersion, &version) == 0 && version >= firstVersionWithOwnMulticast;
}

/// The last label of `name`, with the dot that may end it; null where no dot comes before it.
const char *lastLabel(const char *name) {
  const char *candidate = nullptr;
  for (; *name != '\0'; ++name) {
    if (*name == '.' && name[1] != '\0') candidate = name + 1;
  }
  return candidate;
}

bool isLocal(const char *name) {
  const char *label = lastLabel(name);
  return label != nullptr && (strcasecmp(label, "local") == 0 || strcasecmp(label, "local.") == 0);
}

/// Through the ordinary resolver. That one tells how long a reply was even where the answer holds
/// less of it, as those that come by connection may be; nobody may read what was not written.
int askResolver(const Question &question, Bytes answer) {
  const auto size = static_cast<int>(answer.size());
  return std::min(res_query(question.name, question.rrClass, question.rrType, answer.data(), size),
                  size);
}

/// The query as bytes in `buffer`; its length, or -1.
int makeQuery(const Question &question, Bytes buffer) {
  if ((_res.options & RES_INIT) == 0 && res_init() == -1) return -1;
  const int length = res_mkquery(QUERY, question.name, question.rrClass, question.rrType, nullptr,
                                 0, nullptr, buffer.data(), static_cast<int>(buffer.size()));
  return length < 1 ? -1 : length;
}

bool sendThrough(int socket, const in_addr &interface, Bytes query) {
  if (setsockopt(socket, IPPROTO_IP, IP_MULTICAST_IF, &interface, sizeof interface) != 0) {
    return false;
  }
  const ssize_t sent = sendto(socket, query.data(), query.size(), 0,
                              reinterpret_cast<const sockaddr *>(&mDNS_addr), sizeof mDNS_addr);
  return sent == static_cast<ssize_t>(query.size());
}

/// How poll(2) went until `deadline`: below 0 an error, 0 nothing came, above 0 something is there.
int waitUntilReadable(int socket, Clock::time_point deadline) {
  const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
  if (left.count() <= 0) return 0;
  pollfd waiting{socket, POLLIN, 0};
  return poll(&waiting, 1, static_cast<int>(left.count()));
}

// The C library advises against this call for new protocols, and offers nothing in its place.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
bool matches(Bytes query, Bytes reply) {
  return res_queriesmatch(query.data(), query.data() + query.size(), reply.data(),
                          reply.data() + reply.size()) > 0;
}
#pragma GCC diagnostic pop

/// Waits out one pass. Gives the matching reply's length, 0 where none came, below 0 for an error.
/// Replies to other questions use up the pass's time, so that a chatty network can't prolong it.
int receiveMatchingReply(int socket, Bytes query, Bytes answer) {
  const Clock::time_point deadline = Clock::now() + passTime;
  for (;;) {
    const int ready = waitUntilReadable(socket, deadline);
    if (ready <= 0) return ready;
    sockaddr_in sender{};
    socklen_t senderSize = sizeof sender;
    const ssize_t received = recvfrom(socket, answer.data(), answer.size(), 0,
                                      reinterpret_cast<sockaddr *>(&sender), &senderSize);
    if (received <= 0) return -1;
    if (matches(query, answer.first(static_cast<std::size_t>(received)))) {
      return static_cast<int>(received);
    }
  }
}

int askByMulticast(const Question &question, Bytes answer) {
  std::array<unsigned char, queryBufferSize> buffer{};
  const int queryLength = makeQuery(question, buffer);
  if (queryLength < 0) return -1;
  const Bytes query = Bytes(buffer).first(static_cast<std::size_t>(queryLength));

  const FileDescriptor socket(::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0));
  if (!socket.valid()) return -1;
  const auto interfaces = multicastInterfaces();
  if (!interfaces) return -1;
  if (setsockopt(socket.get(), IPPROTO_IP, IP_MULTICAST_TTL, &multicastTTL, sizeof multicastTTL) !=
      0) {
    return -1;
  }
  for (int pass = 0; pass < passes; ++pass) {
    for (const in_addr &interface : *interfaces) {
      if (!sendThrough(socket.get(), interface, query)) return -1;
    }
    const int result = receiveMatchingReply(socket.get(), query, answer);
    if (result != 0) return result;
  }
  errno = ETIMEDOUT;
  return -1;
}

}  // namespace
}  // namespace orvek

int mDNS_res_query(const char *name, int rrClass, int rrType, unsigned char *answer,
                   int answerSize) {
  orvek::prepareMulticastAddress();
  if (name == nullptr || answer == nullptr || answerSize < 1) {
    errno = EINVAL;
    return -1;
  }
  const orvek::Question question{name, rrClass, rrType};
  const orvek::Bytes bytes(answer, static_cast<std::size_t>(answerSize));
  const bool ordinary = orvek::systemResolvesMulticast() || !orvek::isLocal(name);
  return ordinary ? orvek::askResolver(question, bytes) : orvek::askByMulticast(question, bytes);
}
